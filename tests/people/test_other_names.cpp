#include <gtest/gtest.h>

#include "../platform/temp_files.h"
#include "people/other_names.h"
#include "platform/linux/linux_files.h"

namespace benevix {
namespace {

TEST(OtherNames, AreStoredInTheOrderOfTyping) {
  const TempFolder folder;
  LinuxFiles files;
  OtherNames names(files, FilePath(folder / "names"));
  ComboBox combo;
  combo.list = {"own"};
  names.LoadOtherNames(combo);
  for (const char* name : {"Smith, J\xF6rg", "B", "B"}) names.AppendOtherName(name);
  EXPECT_EQ(ReadFile(folder / "names"), "Smith, J\xF6rg\r\nB\r\nB\r\n");
  WriteFile(folder / "names", "Smith, J\xF6rg\r\n\r\nno end");
  names.LoadOtherNames(combo);
  OtherNames unreadable(files, FilePath(folder / "."));
  unreadable.LoadOtherNames(combo);
  unreadable.AppendOtherName("not written");
  EXPECT_EQ(combo.list, (std::vector<std::string>{"own", "Smith, J\xF6rg", "", "no end"}));
}

}  // namespace
}  // namespace benevix
