// Where the archive is, for who starts from the desktop, where no folder is current.
#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <string>

namespace ambra {

/// The folder that stands for the drive: the one around the current folder, or the one that the user pointed
/// at last, or else one that `chiedi` gives, asked with the reason until there is an archive; that is
/// remembered. Makes it the current folder. Nothing when `chiedi` gives an empty text.
std::optional<std::string> radice_dal_desktop(const std::function<QString(const QString&)>& chiedi);

/// Asks the user to point at the folder, after the reason; empty when he would rather not.
QString chiedi_cartella(const QString& motivo);

}  // namespace ambra
