#pragma once

namespace benevix {

enum class PaymentState { NotKnown, Paid, Cancelled };

}  // namespace benevix
