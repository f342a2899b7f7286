#include "forms/schermate.h"

#include "forms/lumstce.h"
#include "forms/mrvlay.h"
#include "forms/mrvteti.h"
#include "screen/registro.h"

namespace ambra {

namespace {

void modello_predefinito(Programma& p) {
    p.tipomodulo = 3;
}

}  // namespace

void registra_forms(Registro& r) {
    r.registra<Lumstce>("lumstce");
    r.registra<Mrvlay>("mrvlay", {.prepara = modello_predefinito});
    r.registra<Mrvteti>("mrvteti", {.prepara = modello_predefinito});
}

}  // namespace ambra
