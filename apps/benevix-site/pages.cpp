#include "pages.h"

namespace benevix {
namespace {

constexpr std::string_view pageStyle = R"(
:root { color-scheme: light dark; --ink: #22302c; --soft: #5b6b66; --paper: #f6f4ee; --card: #fff;
  --line: #d9d5c8; --accent: #1f6f5c; --on-accent: #fff; }
@media (prefers-color-scheme: dark) { :root { --ink: #e6ebe8; --soft: #a3b1ac; --paper: #161b1a;
  --card: #1f2624; --line: #37413e; --accent: #6cc7ae; --on-accent: #0f1716; } }
body { margin: 0; padding: 2rem 1rem; background: var(--paper); color: var(--ink);
  font: 1rem/1.6 "Segoe UI", "Noto Sans", "DejaVu Sans", sans-serif; }
main { max-width: 38rem; margin: 0 auto; padding: 1.5rem 2rem 2rem; background: var(--card);
  border: 1px solid var(--line); border-radius: .75rem; }
h1 { margin: 0 0 .75rem; font-size: 1.5rem; line-height: 1.25; }
dl { display: grid; grid-template-columns: max-content 1fr; gap: .4rem 1.25rem; margin: 1.25rem 0; }
dt { color: var(--soft); }
dd { margin: 0; overflow-wrap: anywhere; white-space: pre-wrap; }
dd.amount { font-size: 1.25rem; font-weight: 600; }
nav { display: flex; flex-wrap: wrap; gap: .75rem; }
nav a { padding: .5rem 1.25rem; border: 1px solid var(--accent); border-radius: .5rem;
  color: var(--accent); text-decoration: none; }
nav a.main { background: var(--accent); color: var(--on-accent); }
p.note { margin-bottom: 0; color: var(--soft); font-size: .9rem; }
@media (max-width: 30rem) { main { padding: 1.25rem; } dl { grid-template-columns: 1fr; gap: 0; }
  dd { margin-bottom: .6rem; } }
)";

std::string Escape(std::string_view text) {
  std::string escaped;
  escaped.reserve(text.size());
  for (const char c : text) {
    switch (c) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      case '"':
        escaped += "&quot;";
        break;
      case '\'':
        escaped += "&#39;";
        break;
      case '\0':
        break;
      default:
        escaped.push_back(c);
    }
  }
  return escaped;
}

// Takes a title as plain text and a body as HTML.
std::string Page(std::string_view title, std::string_view body) {
  std::string page =
      "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"windows-1252\">\n"
      "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>";
  page += Escape(title);
  page += "</title>\n<style>";
  page += pageStyle;
  page += "</style>\n</head>\n<body>\n<main>\n<h1>";
  page += Escape(title);
  page += "</h1>\n";
  page += body;
  page += "</main>\n</body>\n</html>\n";
  return page;
}

std::string Row(std::string_view name, std::string_view value, std::string_view look = "") {
  std::string row = "<dt>" + Escape(name) + "</dt><dd";
  if (!look.empty()) row += " class=\"" + std::string(look) + "\"";
  row += ">";
  row += value.empty() ? "(not given)" : Escape(value);
  row += "</dd>\n";
  return row;
}

bool IsWebAddress(std::string_view address) {
  return address.starts_with("http://") || address.starts_with("https://");
}

// An address that is none of the web's gets no link: it could run a script.
std::string Link(std::string_view caption, const std::string& address, std::string_view look) {
  if (!IsWebAddress(address)) return "";
  return "<a class=\"" + std::string(look) + "\" href=\"" + Escape(address) + "\">" +
         Escape(caption) + "</a>\n";
}

}  // namespace

std::string MailSentPage(const std::vector<RequestField>& fields) {
  std::string body = "<p>Your message has been accepted for delivery.</p>\n<dl>\n";
  body += Row("From", FieldValue(fields, "email"));
  body += Row("To", FieldValue(fields, "recipient"));
  body += Row("Subject", FieldValue(fields, "subject"));
  body += Row("Message", FieldValue(fields, ""));
  body += "</dl>\n<p class=\"note\">This is a demonstration: no mail leaves this machine.</p>\n";
  return Page("Thank You", body);
}

std::string PaymentPage(const std::vector<RequestField>& fields) {
  const std::string currency = FieldValue(fields, "currency_code");
  const std::string amount = FieldValue(fields, "amount");
  const std::string returnAddress = FieldValue(fields, "return");
  const std::string cancelAddress = FieldValue(fields, "cancel_return");
  std::string body = "<p>Please check what is to be paid.</p>\n<dl>\n";
  body += Row("Payee", FieldValue(fields, "business"));
  body += Row("Item", FieldValue(fields, "item_name"));
  body += Row("Transaction", FieldValue(fields, "item_number"));
  body += Row("Amount", amount, "amount");
  body += Row("Currency", currency);
  body += Row("After payment", returnAddress);
  body += Row("On cancelling", cancelAddress);
  body += "</dl>\n<nav>\n";
  body += Link("Pay", returnAddress, "main");
  body += Link("Cancel", cancelAddress, "other");
  body += "</nav>\n<p class=\"note\">This is a demonstration: no money is moved.</p>\n";
  return Page("Secure payment", body);
}

std::string ErrorPage(int status, std::string_view reason) {
  return Page("Error " + std::to_string(status), "<p>" + Escape(reason) + "</p>\n");
}

}  // namespace benevix
