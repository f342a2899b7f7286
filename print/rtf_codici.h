// Character sets of rich text, all brought to Windows-1252. What it lacks becomes '?'.
#pragma once

namespace ambra::rtf {

constexpr int kPaginaSimboli = 42;
constexpr char kPallino = '\x95';

/// The code page of a font's character set; `predefinita` for one that names none.
int pagina_di(int insieme, int predefinita);
char da_pagina(int pagina, unsigned char byte);
char da_unicode(char32_t punto);
/// A character of a symbol face, as the nearest one of an ordinary face.
char da_simbolo(unsigned char byte);
/// Whether characters of 128 and above come in pairs of bytes.
bool a_due_byte(int pagina);

}  // namespace ambra::rtf
