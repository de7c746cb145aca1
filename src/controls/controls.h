#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <variant>
#include <vector>

#include "base/currency.h"
#include "base/page.h"
#include "controls/control.h"
#include "controls/list_view.h"
#include "controls/table.h"

namespace benevix {

// A colour stands for a role: 0x00BBGGRR, or 0x80000000 plus the index of a system colour. The
// mirror gives each role a look of its own in the light and in the dark scheme (RoleColor).
using Color = std::uint32_t;

namespace colors {
inline constexpr Color kBlack = 0x00000000;
inline constexpr Color kRed = 0x000000FF;
inline constexpr Color kGreen = 0x0000FF00;
inline constexpr Color kLightGrey = 0x00E0E0E0;
inline constexpr Color kSand = 0x00A2D1D1;
inline constexpr Color kLightSand = 0x00A5D5D6;
inline constexpr Color kAccent = 0x80000002;  // what is chosen, or under the mouse
inline constexpr Color kSplashBorder = 0x80000003;
inline constexpr Color kWindowBackground = 0x80000005;
inline constexpr Color kWindowText = 0x80000008;
inline constexpr Color kMuted = 0x8000000B;  // borders, and a text that is less important
inline constexpr Color kButtonFace = 0x8000000F;
inline constexpr Color kOff = 0x80000010;  // an indicator or a link that has nothing to tell
inline constexpr Color kButtonText = 0x80000012;
inline constexpr Color kBalanceGround = 0x80000013;
inline constexpr Color kNewsText = 0x80000015;
inline constexpr Color kNewsLit = 0x80000016;  // the news indicator with news
}  // namespace colors

struct TextBox : Control {
  TextBox() = default;
  explicit TextBox(std::string tip) : Control(std::move(tip)) {}

  // For the program: the box then no longer holds what the user typed.
  void Write(std::string written) {
    text = lastWritten = std::move(written);
    typed = false;
    note.clear();
  }

  std::string text;
  std::string lastWritten;  // by the program
  bool typed = false;       // the user changed the text since the program last wrote it
  bool multiLine = false;
  Color foreColor = colors::kWindowText;
  Color backColor = colors::kWindowBackground;
  int fontSize = 8;  // points
  bool fontBold = false;
  int selections = 0;  // how often the whole text was to be selected
};

struct Label : Control {
  Label() = default;
  explicit Label(std::string text, std::string tip = {}, const char* heldBy = "")
      : Control(std::move(tip), heldBy), caption(std::move(text)) {}

  std::string caption;
  Color foreColor = colors::kButtonText;
  // Twips. Only a label on a panel of its own can be moved, and there the mirror sets the height to
  // that of the whole text.
  int left = 0, top = 0, height = 0;
};

struct Button : Control {
  Button() = default;
  explicit Button(std::string text, std::string tip = {})
      : Control(std::move(tip)), caption(std::move(text)) {}

  std::string caption;
};

// Of the option buttons of one array at most one has the value True.
struct OptionButton : Control {
  OptionButton() = default;
  explicit OptionButton(std::string text, std::string tip = {}, const char* heldBy = "")
      : Control(std::move(tip), heldBy), caption(std::move(text)) {}

  std::string caption;
  bool value = false;
  Color backColor = colors::kButtonFace;
};

template <std::size_t N>
void Choose(OptionButton (&group)[N], std::size_t index) {
  for (std::size_t i = 0; i < N; ++i) group[i].value = i == index;
}

// The chosen option's index, or -1.
template <std::size_t N>
int Chosen(const OptionButton (&group)[N]) {
  for (std::size_t i = 0; i < N; ++i) {
    if (group[i].value) return static_cast<int>(i);
  }
  return -1;
}

struct CheckBox : Control {
  CheckBox() = default;
  explicit CheckBox(std::string text, std::string tip = {}, const char* heldBy = "")
      : Control(std::move(tip), heldBy), caption(std::move(text)) {}

  std::string caption;
  int value = 0;  // 0 or 1
};

struct ComboBox : Control {
  ComboBox() = default;
  explicit ComboBox(bool canBeTyped, std::string tip = {}, const char* heldBy = "")
      : Control(std::move(tip), heldBy), editable(canBeTyped) {}

  bool editable = false;
  std::string text;
  std::vector<std::string> list;
};

struct MenuItem : Control {
  MenuItem() = default;
  explicit MenuItem(std::string text, const char* heldBy = "", bool afterSeparator = false)
      : Control({}, heldBy), caption(std::move(text)), separated(afterSeparator) {}

  std::string caption;
  bool checked = false;
  bool separated = false;  // a separator comes before it
  int popUps = 0;          // how often it was to open at the mouse
};

// Menu items that are made at run time, by index. The array's own fields hold for all of them.
struct MenuArray : Control {
  MenuArray() = default;
  explicit MenuArray(const char* heldBy, bool afterSeparator = false)
      : Control({}, heldBy), separated(afterSeparator) {}

  bool separated = false;
  std::map<int, MenuItem> items;
};

struct Frame : Control {
  Frame() = default;
  explicit Frame(std::string text) : caption(std::move(text)) {}

  std::string caption;
};

// A panel that can hold other controls, or a picture that can be clicked.
struct PictureBox : Control {
  PictureBox() = default;
  explicit PictureBox(std::string tip) : Control(std::move(tip)) {}
  bool isButton = false;  // it takes the focus, and Enter and the space bar press it
};

// A mark whose colours tell something; it can be clicked.
struct Shape : Control {
  Color fillColor = colors::kButtonFace;
  Color borderColor = colors::kMuted;
  int fillStyle = 0;    // 0 solid, 1 transparent
  std::string meaning;  // of its colours, for users who do not see them
};

// A line between parts of a window; no drawing has one.
struct Line : Control {};

struct Timer : Control {
  Timer() = default;
  Timer(int milliseconds, bool runs) : interval(milliseconds) { enabled = runs; }

  int interval = 0;  // milliseconds
};

struct ScrollBar : Control {
  int max = 0;    // twips
  int value = 0;  // twips, 0 to max
};

// How far a request is; with a max of 0 it only shows that something is under way.
struct ProgressBar : Control {
  int max = 0;
  int value = 0;  // 0 to max
};

// How an amount is used: its parts side by side, each as wide as it is large.
struct MoneyBar : Control {
  struct Part {
    enum class Use { Given, ServiceFees, MethodFee, Left };
    Use use;
    std::string caption;
    Currency amount;
  };

  std::vector<Part> parts;
  std::string remark;  // behind the parts' names
};

// Amounts as a picture: columns in the order of time, or shares of a whole, one below the other.
struct Chart : Control {
  enum class Kind { Columns, Shares };
  struct Mark {
    std::string name;
    Currency amount;
    std::string text;  // all that the mark says, for users who rest the mouse on it or hear it
    std::string share = {};  // of the whole, behind the amount: "12%"
    friend bool operator==(const Mark&, const Mark&) = default;
  };

  explicit Chart(Kind ofKind = Kind::Columns) : kind(ofKind) {}

  Kind kind;
  std::vector<Mark> marks;
};

struct PageViewer : Control {
  Page page;
  int navigations = 0;     // how often a page was asked for
  std::string shown;       // the address that it shows by now; empty until the page stands
  bool canGoBack = false;  // the user came to what is shown by a link
  int backs = 0;           // how often the page before was asked for

  void Navigate2(Page to) {
    page = std::move(to);
    ++navigations;
    shown.clear();
    canGoBack = false;
  }
};

struct HttpControl : Control {
  std::string proxy;       // host:port, empty for none
  int requestTimeout = 5;  // seconds
};

enum class MousePointer { Default, Hourglass };

struct Window {
  std::string caption;
  bool topmost = false;
  bool closesByEscape = true;  // unless a control has the shortcut Escape
  bool endsRequests = false;   // closing it ends a request, as with a control
  MousePointer mousePointer = MousePointer::Default;
  int left = 0, top = 0;  // twips; 0, 0 leaves the place to the toolkit
  // The control of the main window that it stands beside. Such a window only shows something: it
  // leaves the keys where they are. Empty for all others.
  const char* beside = "";
};

using AnyControl =
    std::variant<TextBox*, Label*, Button*, OptionButton*, CheckBox*, ComboBox*, MenuItem*,
                 MenuArray*, Frame*, PictureBox*, Shape*, Line*, Timer*, ScrollBar*, ProgressBar*,
                 MoneyBar*, Chart*, PageViewer*, HttpControl*, ListView*, Table*>;

}  // namespace benevix
