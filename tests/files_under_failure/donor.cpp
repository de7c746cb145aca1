#include "donor.h"

#include <cstdlib>
#include <filesystem>
#include <unistd.h>

#include "database/organization_list.h"
#include "people/contact_information.h"

namespace benevix {

void KeepWorldsInMemory() {
  if (access("/dev/shm", W_OK) == 0) setenv("TMPDIR", "/dev/shm", 0);
}

void Furnish(World& world) {
  world.files.Replace(world.info.Resource("sharedb.dat"), kOldList, Readers::Everyone);
  std::filesystem::create_symlink("sharedb.dat", world.info.Resource("shareddb.dat").Utf8());
  world.site.Put("53rv3r/status.txt", {.text = "server ok"});
  world.site.Put("53rv3r/dbcurrver.dat", {.text = "2"});
  world.site.Put("downloads/db2", {.text = kNewList});
  world.site.Put("53rv3r/rates.dat", {.text = "2,3,2.9,0.3,5,a@pay.example,b@pay.example"});
  world.site.Put("53rv3r/ctact.dat", {.text = "mail?,office@benevix.example"});
  world.site.Put("mail", {.text = "Thank You"});
  world.settings.Put("user", "ShowWiz", "False");
  world.settings.Put("user", "BVXDB", "1.0000");
  world.settings.Put("machine", "TimeOut", "30");
  frmPersInfo contact;
  const char* const details[] = {"Ann Lee", "1 Elm St", "Springfield",    "IL",
                                 "62701",   "U.S.A.",   "ann@lee.example"};
  for (int i = 0; i < contact_field::kCount; ++i) contact.Text1[i].text = details[i];
  world.settings.Put("user", "UsrInfo",
                     TextCodec(world.info.exeName).Scramble(JoinContact(contact)));
}

void Donor::Start() {
  if (program_) program_->Finish();
  program_.reset();
  sent_ = false;
  program_ = std::make_unique<Program>(
      Environment{world_.info, world_.settings, http_, boxes_, waits_, world_.clock, world_.random,
                  world_.shell, world_.files, world_.printer},
      ListAhead(world_.files, world_.info.Resource(kListFile)));
  program_->Main();
  Input().Click(program_->TheForms().Get<frmSplash>().Image2[0]);
  if (!HasEnded() && Main().Unfinished.visible) Input().Click(Main().ContinueUnfinished);
}

void Donor::Save(const std::string& address) {
  Input().ChooseMenu(Main().mnuSettings);
  auto& contact = program_->TheForms().Get<frmPersInfo>();
  Input().Type(contact.Text1[1], address);
  Input().Click(contact.Command1[0]);
}

void Donor::EnterBudget(const std::string& dollars) {
  Enter(Main().Text1[money_box::kBudget], dollars);
}

void Donor::ChoosePayment(std::size_t method) {
  auto& payment = program_->TheForms().Get<frmPayOpt>();
  if (!program_->TheDesk().IsShown(payment)) return;
  Input().Choose(payment.Option1[method]);
  Input().Click(payment.Command1[0]);
}

void Donor::Donate(const std::string& id, const std::string& amount) {
  Select(id);
  Enter(Main().Text1[money_box::kDonation], amount);
}

void Donor::AddFavorite(const std::string& id) {
  Select(id);
  Choose(&frmBVX::mnuFavAdd);
}

void Donor::RemoveFavorite(int index) {
  Choose(&frmBVX::mnuFavsRemove);
  Input().ChooseMenu(Main().mnuFavs, index);
}

void Donor::Continue() {
  Input().Click(Main().Command1);
  sent_ = sent_ || Main().mnuPrntSession.enabled;
}

void Donor::Select(const std::string& id) {
  ListView& list = Main().ListView1;
  int row = 1;
  while (row < list.Count() && list.rows->Text(row, column::kId) != id) ++row;
  Input().SelectRow(list, row, MouseButton::Left);
}

void Donor::Enter(TextBox& box, const std::string& text) {
  Input().Focus(box);
  Input().Type(box, text);
  Input().Key(box, keys::kEnter);
}

Confirmed Donor::State() {
  frmBVX& main = Main();
  const SessionValues& values = program_->Values();
  std::string session;
  // What was sent is confirmed by the history; its steps are not kept over a restart.
  const bool isSent = main.mnuPrntSession.enabled && !main.mnuUndo.enabled;
  if (!isSent && (values.Budget != Currency() || !main.ListView1.cells.empty())) {
    session = values.Budget.ToText() + " = " + values.Balance.ToText() + " + " +
              values.TotalDonated.ToText() + (main.mnuDeductFees.checked ? " deduct" : " add") +
              std::to_string(benevix::Chosen(program_->TheForms().Get<frmPayOpt>().Option1));
    for (const auto& [row, cells] : main.ListView1.cells) {
      for (const std::string& cell : cells) session += "|" + cell;
    }
    for (const MenuItem* command : {&main.mnuUndo, &main.mnuRedo}) {
      if (!sent_ && command->enabled) session += "; " + command->caption;
    }
  }
  std::string favorites = world_.settings.Text("favorites", "").value_or("0");
  for (int i = 1; const auto favorite = world_.settings.Text("favorites", std::to_string(i)); ++i) {
    favorites += ";" + *favorite;
  }
  const std::string contact = world_.settings.Text("user", "UsrInfo").value_or("");
  return {session, favorites, program_->Codec().Unscramble(contact)};
}

std::string Donor::Said() {
  std::string said = Main().Label6.caption + Main().Text1[money_box::kDonation].note +
                     program_->TheForms().Get<frmPersInfo>().Text1[0].note;
  for (const auto& box : boxes_.shown) said += "\n" + box.text;
  return said;
}

Way FixedWay() {
  using Self = Donor;
  return {
      &Self::Start,
      [](Donor& donor) { donor.Save("2 Oak St"); },
      [](Donor& donor) { donor.AddFavorite("42"); },
      [](Donor& donor) { donor.AddFavorite("7"); },
      [](Donor& donor) { donor.RemoveFavorite(0); },
      [](Donor& donor) { donor.Choose(&frmBVX::mnuDeductFees); },
      [](Donor& donor) { donor.EnterBudget("500"); },
      [](Donor& donor) { donor.ChoosePayment(0); },
      [](Donor& donor) { donor.Choose(&frmBVX::mnuPercentBal); },
      [](Donor& donor) { donor.Donate("42", "20"); },
      [](Donor& donor) { donor.Choose(&frmBVX::mnuDirectCurr); },
      [](Donor& donor) { donor.Donate("7", "50.25"); },
      [](Donor& donor) { donor.Choose(&frmBVX::mnuCorrect); },
      [](Donor& donor) { donor.Choose(&frmBVX::mnuUndo); },
      [](Donor& donor) { donor.Choose(&frmBVX::mnuUndo); },
      [](Donor& donor) { donor.Choose(&frmBVX::mnuRedo); },
      &Self::Start,
      [](Donor& donor) { donor.Choose(&frmBVX::mnuUndo); },
      [](Donor& donor) { donor.Choose(&frmBVX::mnuDistribFavs); },
      &Self::Continue,
      [](Donor& donor) { donor.Choose(&frmBVX::mnuNew); },
      [](Donor& donor) { donor.EnterBudget("30"); },
      [](Donor& donor) { donor.Donate("42", "30"); },
  };
}

Way RandomWay(std::mt19937& random) {
  const std::vector<MenuItem frmBVX::*> commands = {
      &frmBVX::mnuUndo,       &frmBVX::mnuUndo,        &frmBVX::mnuUndo,
      &frmBVX::mnuRedo,       &frmBVX::mnuRedo,        &frmBVX::mnuCls,
      &frmBVX::mnuCorrect,    &frmBVX::mnuDistribFavs, &frmBVX::mnuRecallSession,
      &frmBVX::mnuNew,        &frmBVX::mnuAddFees,     &frmBVX::mnuDeductFees,
      &frmBVX::mnuDirectCurr, &frmBVX::mnuPercentBal,  &frmBVX::mnuRound};
  const auto upTo = [&](unsigned most) { return static_cast<int>(random() % (most + 1)); };
  Way way = {&Donor::Start};
  while (way.size() < 25) {
    const std::string id = std::vector<std::string>{"42", "7", "123"}[random() % 3];
    const std::string amount = std::to_string(upTo(upTo(1) == 0 ? 9 : 90));
    const std::string budget = upTo(4) == 0 ? "9999" : amount;  // the program asks about that
    const auto method = static_cast<std::size_t>(upTo(2));
    const bool yes = upTo(2) > 0;
    const auto command = commands[random() % commands.size()];
    switch (upTo(11)) {
      case 0:
        way.emplace_back(&Donor::Start);
        break;
      case 1:
        way.emplace_back(&Donor::Continue);
        break;
      case 2:
        way.emplace_back([=](Donor& donor) { donor.Answer(yes); });
        way.emplace_back([=](Donor& donor) { donor.EnterBudget(budget); });
        way.emplace_back([=](Donor& donor) { donor.ChoosePayment(method); });
        break;
      case 3:
        way.emplace_back([=](Donor& donor) { donor.AddFavorite(id); });
        break;
      case 4:
        way.emplace_back([](Donor& donor) { donor.RemoveFavorite(0); });
        break;
      case 5:
      case 6:
      case 7:
        way.emplace_back([=](Donor& donor) { donor.Donate(id, amount); });
        break;
      default:
        way.emplace_back([=](Donor& donor) { donor.Choose(command); });
    }
  }
  return way;
}

}  // namespace benevix
