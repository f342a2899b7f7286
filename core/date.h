// Dates: stored as "yyyymmdd" or "ddmmyyyy" (fixed per field), shown as "dd/mm/yyyy".
//
// The conversions only move characters: a field of blanks or rubbish gives what its characters give.
#pragma once

#include <ctime>
#include <optional>
#include <string>
#include <string_view>

namespace ambra {

struct Data {
    int giorno = 1, mese = 1, anno = 2000;
    bool operator==(const Data&) const = default;
};

/// The date test: day, month, four-digit year, separated by '/', '-' or '.', a real Gregorian day.
/// Blanks around are allowed.
std::optional<Data> data_valida(std::string_view s);
/// A real day written "yyyy-mm-dd", and nothing else.
std::optional<Data> data_iso(std::string_view s);
/// "yyyy-mm-dd".
std::string testo_iso(const Data& d);
/// "dd/mm/yyyy".
std::string testo_data(const Data& d);

/// "yyyymmdd" to "dd/mm/yyyy": characters 7 and 8, 5 and 6, 1 to 4.
std::string mostra_aaaammgg(std::string_view s);
/// "ddmmyyyy" to "dd/mm/yyyy".
std::string mostra_ggmmaaaa(std::string_view s);
/// Shown to "yyyymmdd": the last four characters, characters 4 and 5, the first two.
std::string in_aaaammgg(std::string_view mostrata);
/// Shown to "ddmmyyyy": the first two characters, 4 and 5, 7 to 10.
std::string in_ggmmaaaa(std::string_view mostrata);
/// "ddmmyyyy" to "yyyymmdd".
std::string da_ggmmaaaa_a_aaaammgg(std::string_view s);

/// The clock on the wall of this machine.
std::tm adesso();

/// Day of the week, 0 Sunday to 6 Saturday, of a Gregorian date.
int giorno_settimana(const Data& d);
/// Days of a month of the Gregorian calendar.
int giorni_del_mese(int mese, int anno);
/// `giorni` days, not below 0, after a date.
Data piu_giorni(Data d, int giorni);

}  // namespace ambra
