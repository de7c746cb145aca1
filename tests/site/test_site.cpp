#include <filesystem>
#include <gtest/gtest.h>

#include "../platform/temp_files.h"
#include "base/number_text.h"
#include "benevix-site/site.h"
#include "database/organization_list.h"
#include "platform/linux/linux_files.h"
#include "server/translation.h"

namespace benevix {
namespace {

const std::string kAddress = "http://127.0.0.1:1/";

class SmallSite : public testing::Test {
 protected:
  SmallSite() {
    WriteFile(folder_ / "secret.txt", "secret");
    WriteFile(folder_ / "site/a b.txt", "{site}x {site}");
    WriteFile(folder_ / "site/sub/program.exe", "{site}\xFF");
    std::filesystem::create_symlink("../secret.txt", folder_ / "site/out.txt");
  }

  TempFolder folder_;
  bool made_ = std::filesystem::create_directories(folder_ / "site/sub");
  Site site_{folder_ / "site", kAddress};
};

TEST_F(SmallSite, PutsItsAddressIntoTextFilesOnly) {
  const SiteAnswer text = site_.Answer("/a%20b.txt?ignored#too");
  EXPECT_EQ(text.status, 200);
  EXPECT_EQ(text.contentType, "text/plain; charset=windows-1252");
  EXPECT_EQ(text.body, kAddress + "x " + kAddress);
  EXPECT_EQ(site_.Answer("/sub/program.exe").body, "{site}\xFF");
  WriteFile(folder_ / "site/index.html", "home");
  EXPECT_EQ(site_.Answer("/").body, "home");
}

TEST_F(SmallSite, NothingOutsideTheFolderIsServed) {
  using namespace std::string_literals;
  for (const std::string& target :
       {"/../secret.txt"s, "/%2e%2e/secret.txt"s, "/sub/../../secret.txt"s, "/..%5csecret.txt"s,
        "/sub/..\\..\\secret.txt"s, "/out.txt"s, "/" + folder_ / "secret.txt", "/C:/secret.txt"s,
        "/a b.txt%00"s, "//etc/passwd"s, "/sub"s, "/"s, ""s, "/none.txt"s}) {
    const SiteAnswer answer = site_.Answer(target);
    EXPECT_EQ(answer.status, 404) << target;
    EXPECT_EQ(answer.body.find("secret"), std::string::npos) << target;
  }
}

TEST_F(SmallSite, MailNeedsASenderAndARecipient) {
  const SiteAnswer sent = site_.Answer(
      "/cgi-bin/mail?email=a@b.example&recipient=c@d.example"
      "&subject=1%20<2&=T\xE9xt & more");
  EXPECT_EQ(sent.status, 200);
  for (const auto* part : {"Thank You", "a@b.example", "c@d.example", "1 &lt;2", "T\xE9xt "}) {
    EXPECT_NE(sent.body.find(part), std::string::npos) << part;
  }
  for (const auto* query :
       {"", "email=a@b.example", "recipient=c@d.example", "email=&recipient="}) {
    const SiteAnswer refused = site_.Answer(std::string("/cgi-bin/mail?") + query);
    EXPECT_EQ(refused.status, 400);
    EXPECT_EQ(refused.body.find("Thank You"), std::string::npos);
  }
}

TEST_F(SmallSite, PaymentPageEscapesItsValues) {
  const SiteAnswer page = site_.Answer(
      "/xclick/business=<script>alert(1)</script>&item_name=%22%27&amount=209.70"
      "&return=javascript:alert(1)&cancel_return=" +
      kAddress + "cncl.html?a%26b");
  for (const std::string& part :
       {std::string("209.70"), std::string("&lt;script&gt;alert(1)&lt;/script&gt;"),
        std::string("&quot;&#39;"), "href=\"" + kAddress + "cncl.html?a&amp;b\""}) {
    EXPECT_NE(page.body.find(part), std::string::npos) << part;
  }
  for (const char* part : {"<script", "href=\"javascript"}) {
    EXPECT_EQ(page.body.find(part), std::string::npos) << part;
  }
}

// The site of the demonstration.
struct ServedSite : testing::Test {
  Site site_{std::string(PROJECT_FOLDER) + "/site", kAddress};
};

TEST_F(ServedSite, OffersANewerListUnderItsVersion) {
  const std::string version = site_.Answer("/53rv3r/dbcurrver.dat").body;
  const std::string list = site_.Answer("/downloads/db" + version).body;
  EXPECT_TRUE(list.starts_with(";QUORL" + version + "\r\n"));
  const std::string installed = ReadFile(std::string(PROJECT_FOLDER) + "/resources/sharedb.dat");
  EXPECT_GT(Val(version), Val(installed.substr(6)));
  EXPECT_GT(list.size(), installed.size());
  EXPECT_EQ(list.find('<'), std::string::npos);
}

TEST_F(ServedSite, TellsAboutEveryListedOrganization) {
  const FilePath file(std::string(PROJECT_FOLDER) + "/resources/sharedb.dat");
  const OrganizationList list(*LinuxFiles().Open(file));
  for (int row = 1; row <= list.Count(); ++row) {
    if (!list.Id(row)) continue;
    const SiteAnswer page = site_.Answer("/infoDB/" + list.Text(row, column::kId) + ".dat");
    EXPECT_TRUE(page.body.starts_with(list.Text(row, column::kOrganization))) << row;
    EXPECT_EQ(page.body.find("404"), std::string::npos) << row;
  }
}

TEST_F(ServedSite, TranslationsAreAcceptedByTheProgram) {
  const auto translated = [&](const std::string& languages, const std::string& page) {
    return TranslatedPage(
        site_.Answer("/parley?sequence=core&language=" + languages + "&url=" + page).body);
  };
  const std::string page = kAddress + "infoDB/101.dat";
  const std::string french = translated("en/fr", page);
  EXPECT_NE(french.find("from English to French"), std::string::npos) << french;
  EXPECT_NE(french.find("Agua Mansa de la Puna &para; Water"), std::string::npos) << french;
  EXPECT_NE(translated("english/GERMAN", page).find("to German"), std::string::npos);
  for (const auto* languages : {"en/", "en", "", "/", "en/xx", "xx/en", "en/fr/de"}) {
    EXPECT_EQ(translated(languages, page), "Language not supported") << languages;
  }
  for (const std::string& elsewhere :
       {std::string(), kAddress + "infoDB/none.dat", kAddress + "../resources/wlist.res",
        std::string("http://elsewhere.example/infoDB/101.dat")}) {
    EXPECT_EQ(site_.Answer("/parley?language=en/fr&url=" + elsewhere).status, 404) << elsewhere;
  }
}

}  // namespace
}  // namespace benevix
