#include <gtest/gtest.h>

#include "../text_cases.h"
#include "server/translation.h"

namespace benevix {
namespace {

TEST(Translation, ShowsWhatFollowsTheFirstBracketOrTheProblem) {
  for (const auto& [answer, shown] : Cases(
           {" => Request timed out", "<html>Une page => Une page", "Nur Text => Nur Text",
            "Eine Seite > hier =>  hier", "<error 404>Seite => Seite",
            // An error takes precedence over other HTML.
            "<p>An ERROR <b> => Language not supported", "plain 404 text => Language not supported",
            "<p>Eine <b>Seite</b> => The service could not be contacted",
            "nothing> => The service could not be contacted"})) {
    EXPECT_EQ(TranslatedPage(answer), shown);
  }
}

}  // namespace
}  // namespace benevix
