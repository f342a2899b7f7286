#include "tests/storia/eventi.h"

#include <cmath>
#include <sstream>

#include "tests/storia/parole.h"

namespace ambra::storia {

namespace {

bool combacia(const Json& voluto, const Json& ora);

bool combacia_lista(const Json& voluto, const Json& ora) {
    if (!voluto.empty() && voluto[0] == "...") {
        std::size_t i = 1;
        for (const auto& x : ora)
            if (i < voluto.size() && combacia(voluto[i], x)) ++i;
        return i == voluto.size();
    }
    if (voluto.size() != ora.size()) return false;
    for (std::size_t i = 0; i < voluto.size(); ++i)
        if (!combacia(voluto[i], ora[i])) return false;
    return true;
}

// Every key of `voluto` is in `ora`; a list that begins with "..." wants its items in this order
// somewhere.
bool combacia(const Json& voluto, const Json& ora) {
    if (voluto.is_object()) {
        if (!ora.is_object()) return false;
        for (const auto& [k, v] : voluto.items())
            if (!ora.contains(k) || !combacia(v, ora[k])) return false;
        return true;
    }
    if (voluto.is_array()) return ora.is_array() && combacia_lista(voluto, ora);
    if (voluto.is_number() && ora.is_number())
        return std::fabs(voluto.get<double>() - ora.get<double>()) < 1e-6;
    return voluto == ora;
}

}  // namespace

void pretendi_attesi(const Eventi& eventi, const std::string& righe) {
    std::istringstream in(righe);
    std::size_t i = 0;
    for (std::string r; std::getline(in, r);) {
        if (r.empty()) continue;
        const Json voluto = Json::parse(r);
        const std::size_t da = i;
        while (i < eventi.size() && !combacia(voluto, eventi[i])) ++i;
        if (i == eventi.size()) {
            std::string resto;
            for (std::size_t k = da; k < eventi.size() && resto.size() < 4000; ++k)
                resto += "\n  " + eventi[k].dump().substr(0, 1500);
            male("expected event not seen: " + r + "\nevents from there on:" + resto);
        }
        ++i;
    }
}

void pretendi_mai(const Eventi& eventi, const std::string& righe) {
    std::istringstream in(righe);
    for (std::string r; std::getline(in, r);)
        for (const auto& e : eventi)
            if (combacia(Json::parse(r), e)) male("event should not be: " + e.dump().substr(0, 500));
}

}  // namespace ambra::storia
