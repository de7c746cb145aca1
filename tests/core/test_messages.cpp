#include <algorithm>
#include <gtest/gtest.h>

#include "../boxes_of_a_test.h"
#include "core/messages.h"

namespace benevix {
namespace {

TEST(Messages, ShowsTheCatalogue) {
  ProgramInfo info;
  info.major = 3;
  info.minor = 12;
  info.deployment.product = "Benevix";
  info.deployment.copyright = "Copyright";
  RunValues run;
  run.DBVersion = 2.0013F;
  BoxesOfATest boxes;
  Messages messages(boxes, info, run);
  const struct {
    std::uint8_t number, kind;
    const char *extra, *box, *extraAfterwards;
  } cases[] = {
      {1, 3, "",
       "Benevix - Failed to Connect|Server could not be found or there is not an Internet "
       "connection ",
       ""},
      {2, 0, "", "Benevix - |No updates found at this time", ""},
      {3, 4, " x", "Benevix - Suspicious Error x|Update downloaded successfuly", " x"},
      {5, 1, "", "Benevix - Recoverable Error #0|", ""},
      {7, 0, "About",
       "Benevix - About|          Benevix        Version 3.12\r\n"
       "          Database          Version 2.0.013\r\n\r\nWritten by the Benevix developers\r\n"
       "Copyright\r\n\r\nThis program is free to use\r\n",
       "About"},
      {11, 255, "", "Benevix - |This service is unavailable at this time. Please try again later",
       ""},
      {13, 2, "150.00",
       "Benevix - Input Error|With the present options the maximum donation is: $150.00   ", ""},
      {255, 0, "e", "Benevix - e|", "e"}};
  for (const auto& [number, kind, extra, box, extraAfterwards] : cases) {
    std::string text = extra;
    messages.ShowMessage(number, kind, text);
    EXPECT_EQ(boxes.shown.back().text, box);
    EXPECT_EQ(text, extraAfterwards);
    EXPECT_EQ(boxes.shown.back().icon, BoxIcon::Information);
    EXPECT_EQ(boxes.shown.back().buttons, BoxButtons::OK);
  }
  messages.ShowMessage(14, 2);
  const std::string newer = boxes.shown.back().text;
  EXPECT_EQ(std::count(newer.begin(), newer.end(), '\r'), 2);
  boxes.answer = BoxAnswer::Yes;
  EXPECT_EQ(messages.Show("question", BoxIcon::Question, BoxButtons::YesNo), BoxAnswer::Yes);
  EXPECT_EQ(boxes.shown.back().text, "Benevix|question");
}

}  // namespace
}  // namespace benevix
