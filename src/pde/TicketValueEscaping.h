#pragma once

#include <string>
#include <string_view>

namespace ComQuorvantVelmar_Plugin::TicketValueEscaping {

/// The value as a custom ticket entry stores it: "%" -> "%x25", "'" -> "%x27",
/// "," -> "%x2C", in that order.
std::string escape(std::string_view value);
/// A stored custom ticket entry read back: every "%x25" becomes "%", then every "%x27"
/// becomes "'", then every "%x2C" becomes ",". Not the inverse of escape for every text.
std::string unescape(std::string_view stored);

}  // namespace ComQuorvantVelmar_Plugin::TicketValueEscaping
