#include "demonstration.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QUrlQuery>
#include <QWidget>
#include <cstdio>

#include "base/runtime_error.h"
#include "database/organization_list.h"
#include "mirror/look/texts.h"
#include "player/paths.h"
#include "player/waiting.h"
#include "player/words.h"

namespace benevix {
namespace {

const std::string kBudgetBox = "frmBVX.Text1(0)";
const std::string kBalanceBox = "frmBVX.Text1(1)";
const std::string kDonationBox = "frmBVX.Text1(2)";
const std::string kList = "frmBVX.ListView1";

QWidget* ShownViewer() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == QLatin1String("frmInfo") && window->isVisible()) return window;
  }
  return nullptr;
}

std::string CellPath(int row, int column) {
  return kList + ".Row(" + std::to_string(row) + ").SubItem(" + std::to_string(column) + ")";
}

// The value of a field of the payment address, whose fields all stand in its path.
QString Field(const QString& address, const QString& name) {
  return QUrlQuery(address.mid(address.indexOf(QLatin1String("business=")))).queryItemValue(name);
}

}  // namespace

Demonstration::Demonstration(const RunFolder& folder, DemonstrationSite& site)
    : folder_(folder),
      site_(site),
      frontEnd_(MakeWindowsFrontEnd(answers_, folder.Pictures().toStdString())),
      machine_(folder.Program().toStdString(), frontEnd_->TheWaits(), frontEnd_->Boxes()),
      program_(machine_.TheEnvironment()) {}

void Demonstration::Play() {
  TellMore("There is no display: the demonstration session is played on windows off the screen.");
  Tell("The demonstration site answers at " + site_.Address());
  QDir(folder_.Pictures()).removeRecursively();
  QDir().mkpath(folder_.Pictures());
  frontEnd_->Start(program_);
  program_.Main();
  Enter();
  TypeBudget();
  ChoosePayment();
  Give(RowOfOrganization(1), "120");
  Give(RowOfOrganization(30), "79.5");
  FinalizeSession();
  ShowHistory();
  Leave();
  TellMore("Pictures, in " + folder_.Pictures() + ":");
  for (const QString& picture : pictures_) TellMore("    " + picture);
}

void Demonstration::Enter() {
  TakePicture("splash");
  Click("frmSplash.Image2(0)");
  Must(program_.TheDesk().IsShown(program_.TheForms().Get<frmBVX>()), "the main window opens");
  Must(program_.Run().ServerOK, "the site says that the server is well");
  if (program_.TheDesk().IsShown(program_.TheForms().Get<frmWizard>())) {
    Must(frontEnd_->Close(program_.TheDesk().Find(program_.TheForms().Get<frmWizard>())),
         "the wizard closes");
  }
  Tell("Entered; the list has " + Shown(kList + ".Count") + " rows");
}

void Demonstration::TypeBudget() {
  Must(frontEnd_->Type(FindControl(program_, kBudgetBox), "200"), "a Budget is typed");
  Must(frontEnd_->Press(FindControl(program_, kBudgetBox), kEnterKey), "Enter is pressed");
  Must(program_.Values().Budget == Currency::FromWhole(200), "the Budget is 200");
  Tell("Budget $" + Shown(kBudgetBox + ".Text") + " typed; Balance $" +
       Shown(kBalanceBox + ".Text"));
  Must(program_.TheDesk().IsShown(program_.TheForms().Get<frmPayOpt>()),
       "the payment options open");
  TakePicture("payment-options");
}

void Demonstration::ChoosePayment() {
  Click("frmPayOpt.Option1(0)");
  Click("frmPayOpt.Command1(0)");
  Must(!program_.TheDesk().IsShown(program_.TheForms().Get<frmPayOpt>()),
       "the payment options close");
  Tell("Payment: " + Shown("frmPayOpt.Option1(0).Caption"));
}

void Demonstration::Give(int row, const std::string& amount) {
  const QString name = Shown(CellPath(row, column::kOrganization));
  Must(frontEnd_->Select(FindControl(program_, kList), row, MouseButton::Left),
       name + " is selected");
  Must(frontEnd_->Type(FindControl(program_, kDonationBox), amount), "a donation is typed");
  Must(frontEnd_->Press(FindControl(program_, kDonationBox), kEnterKey), "Enter is pressed");
  const QString given = Shown(CellPath(row, column::kAmount));
  Must(given.toDouble() == ToQString(amount).toDouble(), "the list shows the amount");
  Tell("Given $" + given + " to " + name + " (" + Shown(CellPath(row, column::kType)) + ")");
  TellMore("service fee $" + Shown(CellPath(row, column::kFee)) + "; Balance $" +
           Shown(kBalanceBox + ".Text"));
  TakePicture("donation");
}

void Demonstration::FinalizeSession() {
  Click("frmBVX.Command1(1)");
  Must(program_.TheDesk().IsShown(program_.TheForms().Get<frmInfo>()), "the payment page opens");
  const QString address = Shown("frmInfo.wb1.Address");
  Must(address.startsWith(site_.Address() + "xclick/business="), "the page is the payment's");
  Tell("Finalized: transaction " + Field(address, "item_number"));
  TellMore("to be paid: $" + Field(address, "amount") + " to " + Field(address, "business"));
  // Only the page viewer asks for it.
  Must(WaitUntil([this] {
         const QStringList asked = site_.Log().filter(QStringLiteral("GET /xclick/business="));
         return !asked.filter(QStringLiteral(" 200 ")).isEmpty();
       }),
       "the site serves the payment page");
  MustShowPage("the payment page is shown");
  Tell("The payment page is shown");
  TakePicture("payment-page");
  Must(frontEnd_->Close(program_.TheDesk().Find(program_.TheForms().Get<frmInfo>())),
       "the viewer closes");
}

void Demonstration::ShowHistory() {
  Click("frmBVX.mnuHistory");
  MustShowPage("the history is shown");
  Tell("The history shows");
  QFile file(folder_.History());
  Must(file.open(QIODevice::ReadOnly), "the history can be read");
  const QString text = ToQString(file.readAll().toStdString());
  const QString record = text.mid(text.lastIndexOf(QLatin1String("-- ")));
  for (const QString& line : record.split(QStringLiteral("\r\n"), Qt::SkipEmptyParts)) {
    TellMore(line);
  }
  TakePicture("history");
  Must(frontEnd_->Close(program_.TheDesk().Find(program_.TheForms().Get<frmInfo>())),
       "the viewer closes");
}

void Demonstration::Leave() {
  TakePicture("end");
  Must(frontEnd_->Close(program_.TheDesk().Find(program_.TheForms().Get<frmBVX>())),
       "the main window closes");
  Must(program_.TheDesk().Ended(), "the program ends");
  program_.Finish();
  frontEnd_->Stop();
  Tell("Left");
}

void Demonstration::Tell(const QString& step) {
  std::printf("%2d  %s\n", ++steps_, qUtf8Printable(step));
}

void Demonstration::TellMore(const QString& line) {
  std::printf("    %s\n", qUtf8Printable(line));
}

void Demonstration::Must(bool done, const QString& what) {
  if (const auto box = answers_.shown.Next()) {
    throw RuntimeError("unexpected message: " + box->title + ": " + box->text);
  }
  if (!done) throw RuntimeError("did not happen: " + FromQString(what));
}

void Demonstration::Click(const std::string& path) {
  Must(frontEnd_->Click(FindControl(program_, path)), "a click on " + ToQString(path));
}

QString Demonstration::Shown(const std::string& path) {
  const Named named = Find(program_, path);
  const auto text = frontEnd_->Read(named.target, named.property);
  Must(text.has_value(), ToQString(path) + " is there");
  return ToQString(*text);
}

int Demonstration::RowOfOrganization(int country) {
  const ListView& list = program_.TheForms().Get<frmBVX>().ListView1;
  int row = 1;
  for (; row < list.Count(); ++row) {
    if (!list.Text(row).empty() && --country == 0) break;
  }
  return row + 1;
}

void Demonstration::MustShowPage(const QString& what) {
  QWidget* const viewer = ShownViewer();
  Must(viewer != nullptr && WaitForPage(*viewer), what);
  Must(viewer->findChild<QWidget*>(QStringLiteral("pageNotice")) == nullptr, what);
}

void Demonstration::TakePicture(const std::string& name) {
  const std::string numbered = std::to_string(pictures_.size() + 1) + "-" + name;
  Must(frontEnd_->Shot(numbered), "a picture is taken");
  pictures_.append(ToQString(numbered) + ".png");
}

}  // namespace benevix
