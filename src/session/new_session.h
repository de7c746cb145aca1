#pragma once

#include "controls/desk.h"
#include "forms/frmBVX.h"
#include "session/session_values.h"

namespace benevix {

// Resets the controls for a new session. The modes, the payment method and the favorites stay.
void ResetSessionControls(frmBVX& main);

// Resets the values to zero and the controls, and empties the list, which the caller reloads.
void ResetSession(frmBVX& main, SessionValues& values, Desk& desk);

}  // namespace benevix
