#include "ui/printing/page_fonts.h"

#include <QStringList>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

// The smallest spacing there is: with any at all the type joins no letters.
constexpr qreal kSeparacionMinima = 1.0 / 64;

} // namespace

QFont LetraDePagina(qreal cuerpo, Grueso grueso)
{
    QFont letra;
    letra.setFamilies({u"Liberation Serif"_s, u"Times New Roman"_s, u"Nimbus Roman"_s, u"DejaVu Serif"_s});
    letra.setStyleHint(QFont::Serif);
    letra.setPixelSize(qRound(cuerpo));
    letra.setBold(grueso == Grueso::Negrita);
    letra.setHintingPreference(QFont::PreferNoHinting);
    letra.setLetterSpacing(QFont::AbsoluteSpacing, kSeparacionMinima);
    return letra;
}

} // namespace valmerix
