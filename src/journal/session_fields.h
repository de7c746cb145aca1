#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "forms/frmBVX.h"
#include "forms/frmPayOpt.h"
#include "session/session_values.h"

namespace benevix {

// Where a session stands besides the list's rows: its amounts, and what the two windows show of it.
struct SessionPlaces {
  frmBVX& main;
  frmPayOpt& payment;
  SessionValues& values;
};

// Each field of a session as a text, always in the same order.
using SessionFields = std::vector<std::string>;

SessionFields ReadFields(const SessionPlaces& places);
// Writes only the fields that differ.
void WriteFields(const SessionPlaces& places, const SessionFields& fields);

// By the place in SessionFields.
const std::string& FieldName(std::size_t field);
enum class FieldKind {
  Money,   // a change is a step of its own
  Choice,  // of the donor, kept over a restart even when no step follows
  Other,
};
FieldKind KindOf(std::size_t field);
// The place of a field; their number for an unknown name.
std::size_t FieldNamed(const std::string& name);

}  // namespace benevix
