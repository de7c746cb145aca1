#pragma once

#include <QString>
#include <QStringList>
#include <memory>
#include <string>

#include "benevix/machine.h"
#include "demonstration_site.h"
#include "player/front_end.h"
#include "program/program.h"
#include "run_folder.h"

namespace benevix {

// A donation session from the splash to the history, played on the real windows as a user would,
// and told step by step.
class Demonstration {
 public:
  Demonstration(const RunFolder& folder, DemonstrationSite& site);

  // Raises RuntimeError at the first step that does not happen as it should.
  void Play();

 private:
  void Enter();
  void TypeBudget();
  void ChoosePayment();
  void Give(int row, const std::string& amount);
  void FinalizeSession();
  void ShowHistory();
  void Leave();

  // Prints a numbered step, or a line that belongs to it.
  void Tell(const QString& step);
  static void TellMore(const QString& line);
  // Raises RuntimeError unless it is done, and when a message box was shown.
  void Must(bool done, const QString& what);
  void Click(const std::string& path);
  // What a property shows; see the front end.
  [[nodiscard]] QString Shown(const std::string& path);
  // The first row below a country's heading, countries counted from 1.
  [[nodiscard]] int RowOfOrganization(int country);
  void MustShowPage(const QString& what);
  void TakePicture(const std::string& name);

  const RunFolder& folder_;
  DemonstrationSite& site_;
  BoxAnswers answers_;
  std::unique_ptr<FrontEnd> frontEnd_;
  Machine machine_;
  Program program_;
  QStringList pictures_;
  int steps_ = 0;
};

}  // namespace benevix
