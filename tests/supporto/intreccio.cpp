#include "tests/supporto/intreccio.h"

#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>

namespace ambra {

namespace {

// The second action in a thread of its own, so that it can stand still in the middle: whoever calls
// `riprendi` waits until it stands or has ended.
class Secondo {
  public:
    explicit Secondo(const std::function<void()>& azione)
        : filo_([this, &azione] {
              aspetta(Turno::suo);
              try {
                  azione();
              } catch (...) {
                  male_ = std::current_exception();
              }
              finito_ = true;
              passa(Turno::nostro);
          }) {}
    ~Secondo() {
        while (!finito_) riprendi();
        filo_.join();
    }
    Secondo(const Secondo&) = delete;
    Secondo& operator=(const Secondo&) = delete;

    bool finito() const { return finito_; }
    void riprendi() {
        if (finito_) return;
        passa(Turno::suo);
        aspetta(Turno::nostro);
    }
    /// Called by the action itself.
    void fermati() {
        passa(Turno::nostro);
        aspetta(Turno::suo);
    }
    void rilancia() const {
        if (male_) std::rethrow_exception(male_);
    }

  private:
    enum class Turno { nostro, suo };
    void passa(Turno t) {
        const std::lock_guard chiuso(m_);
        turno_ = t;
        cambio_.notify_all();
    }
    void aspetta(Turno t) {
        std::unique_lock chiuso(m_);
        cambio_.wait(chiuso, [&] { return turno_ == t; });
    }

    std::mutex m_;
    std::condition_variable cambio_;
    Turno turno_ = Turno::nostro;
    bool finito_ = false;
    std::exception_ptr male_;
    std::thread filo_;
};

void senza_ganci(DiscoMemoria& d) {
    d.prima_di = nullptr;
    d.liberato = nullptr;
    d.occupato = nullptr;
}

}  // namespace

Corsa intreccia(DiscoMemoria& da, const std::function<void()>& a, DiscoMemoria& db,
                const std::function<void()>& b, long k, SeOccupato se, long j) {
    Corsa corsa;
    long fatte_a = 0, fatte_b = 0;
    bool finita_a = false, b_vuole = false;
    std::exception_ptr male;
    {
        Secondo secondo(b);
        da.prima_di = [&](Operazione, std::string_view) {
            if (++fatte_a != k) return;
            corsa.in_mezzo = true;
            secondo.riprendi();
        };
        da.liberato = [&] {
            if (b_vuole) secondo.riprendi();
        };
        // What the second one holds it gives back only if it can go on.
        da.occupato = [&](std::string_view, int) {
            if (b_vuole || secondo.finito()) return false;
            secondo.riprendi();
            return true;
        };
        db.prima_di = [&](Operazione, std::string_view) {
            if (++fatte_b != j || finita_a) return;
            corsa.fermata = true;
            secondo.fermati();
        };
        db.occupato = [&](std::string_view, int) {
            corsa.occupato = true;
            if (se == SeOccupato::rinuncia || finita_a) return false;
            b_vuole = true;
            secondo.fermati();
            b_vuole = false;
            return true;
        };
        try {
            a();
        } catch (...) {
            male = std::current_exception();
        }
        finita_a = true;
        while (!secondo.finito()) secondo.riprendi();
        senza_ganci(da);
        senza_ganci(db);
        if (!male) secondo.rilancia();
    }
    if (male) std::rethrow_exception(male);
    return corsa;
}

long per_ogni_passo(const std::function<Corsa(long k)>& scena) {
    long k = 1;
    while (scena(k).in_mezzo) ++k;
    return k - 1;
}

}  // namespace ambra
