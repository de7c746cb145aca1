#include <gtest/gtest.h>

#include "base/runtime_error.h"
#include "base/text.h"
#include "platform/qt/deployment_file.h"
#include "temp_files.h"

namespace benevix {
namespace {

TEST(DeploymentFile, ReadsValuesAndNamesTheInvalidKey) {
  const TempFolder folder;
  const std::string file = folder / "d\xC3\xA9ployment.ini";
  const std::string valid =
      "\xEF\xBB\xBF# note\r\n ServerBase = https://example.org:8443/a%20b/\r\n"
      "PaymentBase=https://pay.example/xclick/business=\r\n; Mail=no\r\n"
      "Mail=\"a;b\", 100%41 =x\\n\r\nTranslationName=T\nTranslationBase=http://t.example/\n"
      "Copyright=\xC2\xA9 M\xC3\xBCller \xE2\x82\xAC\nProduct=Benevix";
  WriteFile(file, valid);
  const Deployment deployment = ReadDeployment(file);
  EXPECT_EQ(deployment.serverBase, "https://example.org:8443/a%20b/");
  EXPECT_EQ(deployment.paymentBase, "https://pay.example/xclick/business=");
  EXPECT_EQ(deployment.mail, "\"a;b\", 100%41 =x\\n");
  EXPECT_EQ(deployment.copyright, "\xA9 M\xFCller \x80");

  const std::string faults[][3] = {
      {"=Benevix", "= ", "Product"},
      {"TranslationName=T", "", "TranslationName"},
      {"\xC3\xBC", "\xE4\xB8\xAD", "Copyright"},
      {"https://example", "ftp://example", "ServerBase"},
      {"https://pay", "pay", "PaymentBase"},
      {"TranslationName=T", "PaymentIn=b\nTranslationName=T", "PaymentIn"},
      {"TranslationName=T", "UpdateKey=MCow\nTranslationName=T", "UpdateKey"},
      {"a%20b/\r", "a%20b\r", "ServerBase"}};
  for (const auto& [from, to, key] : faults) {
    std::string text = valid;
    WriteFile(file, text.replace(text.find(from), from.size(), to));
    try {
      ReadDeployment(file);
      ADD_FAILURE() << key;
    } catch (const RuntimeError& error) {
      EXPECT_TRUE(std::string(error.what()).starts_with(FromUtf8(file) + ": " + key + " "))
          << error.what();
    }
  }
  EXPECT_THROW(ReadDeployment(folder / "none.ini"), RuntimeError);
}

}  // namespace
}  // namespace benevix
