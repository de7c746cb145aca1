#include "pages.h"

namespace benevix {
namespace {

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
  page += "</title>\n<link rel=\"stylesheet\" href=\"/style.css\">\n</head>\n<body>\n<main>\n<h1>";
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
