#pragma once

#include "core/messages.h"
#include "forms/frmBVX.h"
#include "session/donation_entry.h"
#include "session/favorites.h"
#include "session/session_values.h"

namespace benevix {

// Distributes what is left in equal parts to the favorites that carry no donation yet.
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
  [[nodiscard]] Currency Share(std::size_t stillToCome) const;

  frmBVX& main_;
  const SessionValues& values_;
  const Favorites& favorites_;
  DonationEntry& donation_;
  Messages& messages_;
};

}  // namespace benevix
