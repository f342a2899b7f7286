#include "tests/fatturapa/fatture_prova.h"

#include <archive.h>
#include <archive_entry.h>

namespace ambra::prova {

namespace {

const std::string kOidFirmato("\x06\x09\x2A\x86\x48\x86\xF7\x0D\x01\x07\x02", 11);
const std::string kOidDati("\x06\x09\x2A\x86\x48\x86\xF7\x0D\x01\x07\x01", 11);
const std::string kVersione("\x02\x01\x01", 3), kNessuno("\x31\x00", 2), kChiuso("\x00\x00", 2);

std::string der(char segno, const std::string& dentro) {
    std::string n;
    for (std::size_t k = dentro.size(); k > 0; k >>= 8) n.insert(0, 1, static_cast<char>(k & 0xFF));
    std::string r(1, segno);
    if (dentro.size() >= 0x80) r += static_cast<char>(0x80 + n.size());
    return r + (dentro.empty() ? std::string(1, '\0') : n) + dentro;
}

std::string ber(char segno, const std::string& dentro) {
    return std::string(1, segno) + '\x80' + dentro + kChiuso;
}

}  // namespace

std::string semplificata(const std::string& beni) {
    return "<n:FatturaElettronicaSemplificata "
           "versione=\"FSM10\"><FatturaElettronicaHeader><CedentePrestatore>"
           "<IdFiscaleIVA><IdPaese>IT</IdPaese><IdCodice>01234567897</IdCodice></IdFiscaleIVA><Nome>Anna</"
           "Nome>"
           "<Cognome>Verdi</Cognome><Sede><Indirizzo>Via Po "
           "3</Indirizzo><CAP>20100</CAP></Sede><RegimeFiscale>RF19"
           "</RegimeFiscale></"
           "CedentePrestatore><CessionarioCommittente><IdentificativiFiscali><CodiceFiscale>"
           "97012340158</CodiceFiscale></"
           "IdentificativiFiscali><AltriDatiIdentificativi><Denominazione>CONDOMINIO"
           "</Denominazione></AltriDatiIdentificativi></CessionarioCommittente></FatturaElettronicaHeader>"
           "<FatturaElettronicaBody><DatiGenerali><DatiGeneraliDocumento><TipoDocumento>TD07</"
           "TipoDocumento><Divisa>EUR"
           "</Divisa><Data>2026-10-05</Data><Numero>5</Numero><BolloVirtuale>SI</BolloVirtuale></"
           "DatiGeneraliDocumento>"
           "</DatiGenerali>" +
           beni + "</FatturaElettronicaBody></n:FatturaElettronicaSemplificata>";
}

std::string zip(const Voci& voci, bool cifrato) {
    std::size_t spazio = 1 << 16;
    for (const auto& [nome, contenuto] : voci) spazio += contenuto.size() * 2 + nome.size() * 2 + 512;
    std::string r(spazio, '\0');
    std::size_t scritti = 0;
    archive* a = archive_write_new();
    archive_write_set_format_zip(a);
    if (cifrato) {
        archive_write_set_options(a, "zip:encryption=traditional");
        archive_write_set_passphrase(a, "segreto");
    }
    archive_write_open_memory(a, r.data(), r.size(), &scritti);
    for (const auto& [nome, contenuto] : voci) {
        archive_entry* e = archive_entry_new();
        archive_entry_set_pathname(e, nome.c_str());
        archive_entry_set_size(e, static_cast<la_int64_t>(contenuto.size()));
        archive_entry_set_filetype(e, AE_IFREG);
        archive_entry_set_perm(e, 0644);
        archive_write_header(a, e);
        archive_write_data(a, contenuto.data(), contenuto.size());
        archive_entry_free(e);
    }
    archive_write_close(a);
    archive_write_free(a);
    r.resize(scritti);
    return r;
}

std::string busta_der(const std::string& contenuto) {
    const std::string dati = der('\x30', kOidDati + der('\xA0', der('\x04', contenuto)));
    return der('\x30', kOidFirmato + der('\xA0', der('\x30', kVersione + kNessuno + dati + kNessuno)));
}

std::string busta_ber(const std::string& contenuto, std::size_t pezzo) {
    std::string pezzi;
    for (std::size_t i = 0; i < contenuto.size(); i += pezzo)
        pezzi += der('\x04', contenuto.substr(i, pezzo));
    const std::string dati = ber('\x30', kOidDati + ber('\xA0', ber('\x24', pezzi)));
    return ber('\x30', kOidFirmato + ber('\xA0', ber('\x30', kVersione + kNessuno + dati + kNessuno)));
}

std::string base64(const std::string& byte, bool a_righe) {
    const std::string lettere = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string r;
    std::size_t in_riga = 0;
    for (std::size_t i = 0; i < byte.size(); i += 3) {
        unsigned u = 0;
        for (std::size_t k = 0; k < 3; ++k)
            u = u << 8 | (i + k < byte.size() ? static_cast<unsigned char>(byte[i + k]) : 0U);
        for (std::size_t k = 0; k < 4; ++k) r += i + k > byte.size() ? '=' : lettere[u >> (18 - 6 * k) & 63];
        if (a_righe && (in_riga += 4) == 64) {
            r += "\r\n";
            in_riga = 0;
        }
    }
    return r;
}

}  // namespace ambra::prova
