#pragma once

#include "core/messages.h"
#include "forms/frmBVX.h"
#include "session/donation_entry.h"
#include "session/favorites.h"
#include "session/session_values.h"

namespace benevix {

// Distributes the Balance in equal parts among the favorites that have no donation yet.
class Distribution {
 public:
  Distribution(frmBVX& main, const SessionValues& values, const Favorites& favorites,
               DonationEntry& donation, Messages& messages)
      : main_(main),
        values_(values),
        favorites_(favorites),
        donation_(donation),
        messages_(messages) {}

  void mnuDistribFavs_Click();

 private:
  [[nodiscard]] Currency Share(std::size_t rowsLeft) const;

  frmBVX& main_;
  const SessionValues& values_;
  const Favorites& favorites_;
  DonationEntry& donation_;
  Messages& messages_;
};

}  // namespace benevix
