#include "records/last_session.h"
#include "served.h"
#include "targets.h"

namespace benevix {

void CheckRecall(std::string_view input) {
  std::string_view rest = input;
  while (!rest.empty()) {
    const std::string record = OptionsRecord::CutFrom(rest).ToText();
    std::string_view again = record;
    Require(OptionsRecord::CutFrom(again).ToText() == record, "a record is read as it is written");
  }
  Served served({});
  const FilePath file = served.world.info.Resource("sharedb.dat");
  if (!served.world.files.Exists(file)) {
    served.world.files.Replace(file, ";QUORL1.0\n[Kenya]\n00000042 Water For All, Relief\n");
  }
  SettingsStore settings(served.world.settings);
  settings.SaveUserString("LastSession", std::string(input));
  OrganizationDatabase database(served.main, served.run, settings, served.world.files, file);
  database.LoadOrganizationList();
  SessionValues values;
  LastSession last(served.main, values, served.rates, served.desk, settings, database,
                   served.messages, served.environment, [] {});
  last.mnuRecallSession_Click();
  Require(values.Budget - values.TotalDonated == values.Balance, "the Balance is what is left");
}

}  // namespace benevix
