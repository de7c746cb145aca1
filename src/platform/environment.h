#pragma once

#include "platform/clock.h"
#include "platform/files.h"
#include "platform/http_client.h"
#include "platform/message_boxes.h"
#include "platform/printer.h"
#include "platform/program_info.h"
#include "platform/random_numbers.h"
#include "platform/registry.h"
#include "platform/shell.h"
#include "platform/waits.h"

namespace benevix {

// The interfaces to everything outside the program.
struct Environment {
  ProgramInfo info;
  Registry& registry;
  HttpClient& http;
  MessageBoxes& boxes;
  Waits& waits;
  const Clock& clock;
  RandomNumbers& random;
  Shell& shell;
  Files& files;
  Printer& printer;
};

}  // namespace benevix
