// Any bytes as a backup (compressed or a dated copy) and as the journal of a restore: what proves to be a
// whole set is put in place whole, and a journal that is not understood moves nothing out of its folder.
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

#include "core/impostazioni.h"
#include "fuzz/pretendi.h"
#include "maintenance/ripristino.h"
#include "parti/parti.h"
#include "tests/supporto/cartella_prova.h"
#include "tests/supporto/disco_memoria.h"

namespace {

using namespace ambra;

const std::string kGiornale = kCartella + kGiornaleRipristino;

void archivio_di_ieri(DiscoMemoria& disco) {
    for (const char* nome : {"lum002.ftr", "lum002.tfr", "lumora.pag", "lum001.ftr", "lum002.ftr.~~~"})
        disco.contenuto(kCartella + nome) = nome;
}

void in_posto(const std::vector<FileSalvato>& file) {
    std::string nnn;
    if (!difetto(file, nnn).empty()) return;
    DiscoMemoria disco;
    archivio_di_ieri(disco);
    pretendi(ripristina(disco, file, nnn, "sostituiti-1").empty());
    for (std::size_t i = 1; i < file.size(); ++i)
        pretendi(disco.contenuto(kCartella + file[i].nome) == file[i].contenuto);
    pretendi(ripristino_interrotto(disco).empty());
}

void compresso(const std::string& byte) {
    static const CartellaProva casa;
    const std::string nome = (casa.dove() / "salvataggio").string();
    std::ofstream(nome, std::ios::binary) << byte;
    std::vector<FileSalvato> file;
    if (ambra_archivi()->espandi(nome, file).empty()) in_posto(file);
    for (const auto& f : file) pretendi(f.contenuto.size() <= kMassimoFile + (std::size_t{1} << 16));
}

void intero(const std::string& byte) {
    const std::vector<FileSalvato> file = da_un_pezzo(byte);
    if (!file.empty()) pretendi(in_un_pezzo(file) == byte);
    in_posto(file);
}

void giornale(const std::string& byte) {
    DiscoMemoria disco;
    archivio_di_ieri(disco);
    disco.contenuto(kCartella + "altrui.doc") = "altrui";
    disco.contenuto(kGiornale) = byte;
    const bool finito = riprendi_ripristino(disco).empty();
    pretendi(!finito || ripristino_interrotto(disco).empty());
    pretendi(disco.contenuto(kCartella + "altrui.doc") == "altrui");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t n) {
    const std::string byte(reinterpret_cast<const char*>(dati), n);
    intero(byte);
    giornale(byte);
    compresso(byte);
    return 0;
}
