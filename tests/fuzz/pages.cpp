// Help anchors, and addresses of pages.

#include <algorithm>

#include "base/runtime_error.h"
#include "help/quick_help.h"
#include "mirror/page_viewer/page_address.h"
#include "platform/qt/wire_url.h"
#include "served.h"
#include "targets.h"

namespace benevix {

void CheckHelpAnchors(std::string_view input) {
  LinuxFiles& files = Served::TheWorld().files;
  const FilePath page = Served::TheWorld().info.Resource("anchors.html");
  files.Replace(page, std::string(input));
  MenuArray topics;
  BuildQuickHelpMenu(files, page, topics);
  int next = 0;
  for (const auto& [index, topic] : topics.items) {
    Require(index == next++, "the topics stand in order");
    Require(topic.caption.find_first_of("%>\n") == std::string::npos, "a topic is text");
  }
}

void CheckAddress(std::string_view input) {
  const std::string address(input);
  try {
    const QByteArray wire = WireUrl(address).toEncoded();
    Require(std::all_of(wire.begin(), wire.end(), [](char c) { return c > ' ' && c < '\x7F'; }),
            "a request line has no blanks");
    Require(WireUrl(wire.toStdString()).toEncoded() == wire, "an encoded address stays");
  } catch (const RuntimeError&) {
    // No address of the web.
  }
  try {
    const QUrl page = PageAddress(Page::Web(address));
    const QString origin = OriginText(page);
    Require(page.scheme().startsWith("http"), "a page of the web is no file");
    Require(!origin.isEmpty() && origin.size() <= 80, "where a page comes from can be read");
  } catch (const RuntimeError&) {
    // The same.
  }
}

}  // namespace benevix
