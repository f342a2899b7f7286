// When the tax withheld on a payment must be paid over to the treasury.
#pragma once

#include <string>
#include <string_view>

namespace ambra {

/// The 16th of the month after the payment, moved to the 17th when that is a Sunday and to the 18th when
/// it is a Saturday; no other holiday counts. `pagamento` and the result are "dd/mm/yyyy".
/// The month is read from characters 4 and 5, the year from the last four: a date still being typed gives
/// what its characters give, and never fails.
std::string scadenza_ritenuta(std::string_view pagamento);

}  // namespace ambra
