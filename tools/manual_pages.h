#pragma once

#include "shell/manual.h"

#include <QDir>

namespace valmerix {

/// The pages of a folder of Markdown files, in the order of their names. A first line
/// "<!-- ventanas: Form1 -->" names the windows that the page tells of. Throws std::runtime_error for a file
/// without a title, a link that leads nowhere, a picture that is not there or one that no page shows.
std::vector<PaginaManual> LeerPaginas(const QDir& carpeta);

} // namespace valmerix
