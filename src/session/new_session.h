#pragma once

#include "controls/desk.h"
#include "forms/frmBVX.h"
#include "session/session_values.h"

namespace benevix {

// The controls as a session starts with them. The modes, the payment method and what hangs on the
// favorites stay.
void ResetSessionControls(frmBVX& main);

// The values back to zero, the controls to a session's start. The list is reloaded by the caller.
void ResetSession(frmBVX& main, SessionValues& values, Desk& desk);

}  // namespace benevix
