#include "controls/text_field.h"

#include <algorithm>

namespace valmerix {

namespace {

constexpr int kRetroceso = 8;
constexpr int kPrimeraVisible = 32;
constexpr char16_t kApostrofoTipografico = u'\u2019';

} // namespace

QString ConApostrofoTipografico(QString texto)
{
    return texto.replace(u'\'', QChar(kApostrofoTipografico));
}

void CampoTexto::setText(const QString& texto)
{
    if (texto == texto_)
        return;
    selInicio_ = 0;
    selLongitud_ = 0;
    CambiarTexto(texto);
}

void CampoTexto::CambiarTexto(const QString& texto)
{
    Asignar(texto);
    Q_EMIT Change();
}

void CampoTexto::Asignar(const QString& texto)
{
    texto_ = texto;
    const int total = static_cast<int>(texto_.size());
    selInicio_ = std::min(selInicio_, total);
    selLongitud_ = std::min(selLongitud_, total - selInicio_);
}

void CampoTexto::setMaxLength(int longitud)
{
    if (longitud_ == longitud)
        return;
    longitud_ = longitud;
    Q_EMIT PresentacionCambiada();
}

void CampoTexto::setLocked(bool valor)
{
    if (bloqueado_ == valor)
        return;
    bloqueado_ = valor;
    Q_EMIT PresentacionCambiada();
}

void CampoTexto::setMask(const QString& mascara)
{
    mascara_ = mascara;
    Q_EMIT PresentacionCambiada();
}

QString CampoTexto::mascaraVacia() const
{
    return QString(mascara_).replace(u'9', u' ');
}

void CampoTexto::Seleccionar(int inicio, int longitud)
{
    const int total = static_cast<int>(texto_.size());
    selInicio_ = std::clamp(inicio, 0, total);
    selLongitud_ = std::clamp(longitud, 0, total - selInicio_);
    Q_EMIT SeleccionCambiada();
}

int CampoTexto::FiltrarTecla(int tecla)
{
    if (tecla == u'\'')
        tecla = kApostrofoTipografico;
    Q_EMIT KeyPress(tecla);
    return tecla;
}

QString CampoTexto::FiltrarTexto(const QString& pegado)
{
    QString texto = pegado;
    if (texto.size() > 1)
        Q_EMIT Paste(texto);
    QString resultado;
    resultado.reserve(texto.size());
    for (const QChar c : texto) {
        const bool finDeLinea = c == u'\n' || c == u'\r';
        if (finDeLinea && !variasLineas_)
            continue;
        if (const int tecla = FiltrarTecla(c.unicode()); tecla != 0)
            resultado += QChar(static_cast<char16_t>(tecla));
    }
    return resultado;
}

void CampoTexto::PulsarTecla(int tecla)
{
    if (bloqueado_ || !Enabled())
        return;
    const bool finDeLinea = tecla == u'\n' || tecla == u'\r';
    if (tecla < kPrimeraVisible && tecla != kRetroceso && !(finDeLinea && variasLineas_))
        return;
    tecla = FiltrarTecla(finDeLinea ? u'\n' : tecla);
    if (tecla == kRetroceso) {
        Retroceder();
    } else if (tecla != 0) {
        Insertar(QString(QChar(static_cast<char16_t>(tecla))));
    }
}

void CampoTexto::Retroceder()
{
    if (!mascara_.isEmpty()) {
        BorrarEnMascara();
        return;
    }
    if (selLongitud_ == 0) {
        if (selInicio_ == 0)
            return;
        --selInicio_;
        selLongitud_ = 1;
    }
    SustituirSeleccion({});
}

void CampoTexto::Teclear(const QString& texto)
{
    for (const QChar c : texto)
        PulsarTecla(c.unicode());
}

void CampoTexto::Pegar(const QString& texto)
{
    if (!bloqueado_ && Enabled())
        Insertar(FiltrarTexto(texto));
}

void CampoTexto::Insertar(QString texto)
{
    if (!mascara_.isEmpty()) {
        RellenarMascara(texto);
        return;
    }
    if (longitud_ > 0)
        texto.truncate(std::max<qsizetype>(0, longitud_ - (texto_.size() - selLongitud_)));
    if (!texto.isEmpty())
        SustituirSeleccion(texto);
}

// The text in the mask's form, the selected digits blank.
QString CampoTexto::TextoEnMascara() const
{
    QString texto = texto_.size() == mascara_.size() ? texto_ : mascaraVacia();
    for (int i = selInicio_; i < selInicio_ + selLongitud_ && i < texto.size(); ++i) {
        if (mascara_.at(i) == u'9')
            texto[i] = u' ';
    }
    return texto;
}

void CampoTexto::RellenarMascara(const QString& tecleado)
{
    QString texto = TextoEnMascara();
    const auto total = static_cast<int>(mascara_.size());
    int cursor = selInicio_;
    for (const QChar c : tecleado) {
        if (c.isDigit()) {
            cursor = SiguienteHueco(cursor);
            if (cursor < total)
                texto[cursor++] = c;
        } else if (cursor == 0 || mascara_.at(cursor - 1) != c) {
            cursor = DetrasDelLiteral(c, cursor);
        }
    }
    selInicio_ = SiguienteHueco(cursor);
    selLongitud_ = 0;
    if (texto != texto_)
        CambiarTexto(texto);
}

int CampoTexto::DetrasDelLiteral(QChar literal, int cursor) const
{
    const auto hallado = static_cast<int>(mascara_.indexOf(literal, cursor));
    return hallado < 0 ? cursor : hallado + 1;
}

int CampoTexto::SiguienteHueco(int cursor) const
{
    while (cursor < mascara_.size() && mascara_.at(cursor) != u'9')
        ++cursor;
    return cursor;
}

void CampoTexto::BorrarEnMascara()
{
    QString texto = TextoEnMascara();
    if (selLongitud_ == 0) {
        const auto hueco =
            selInicio_ == 0 ? -1 : static_cast<int>(mascara_.lastIndexOf(u'9', selInicio_ - 1));
        if (hueco < 0)
            return;
        texto[hueco] = u' ';
        selInicio_ = hueco;
    }
    selLongitud_ = 0;
    if (texto != texto_)
        CambiarTexto(texto);
}

void CampoTexto::SustituirSeleccion(const QString& texto)
{
    QString nuevo = texto_;
    nuevo.replace(selInicio_, selLongitud_, texto);
    selInicio_ += static_cast<int>(texto.size());
    selLongitud_ = 0;
    if (nuevo != texto_)
        CambiarTexto(nuevo);
}

void CampoTexto::setTextoEditado(const QString& texto, int cursor)
{
    selInicio_ = std::clamp(cursor, 0, static_cast<int>(texto.size()));
    selLongitud_ = 0;
    if (texto != texto_)
        CambiarTexto(texto);
}

void Lista::setList(const QStringList& elementos)
{
    elementos_ = elementos;
    Q_EMIT PresentacionCambiada();
}

void Lista::AddItem(const QString& texto, int indice)
{
    if (indice < 0 || indice > elementos_.size())
        indice = static_cast<int>(elementos_.size());
    elementos_.insert(indice, texto);
    Q_EMIT PresentacionCambiada();
}

void Lista::RemoveItem(int indice)
{
    if (indice < 0 || indice >= elementos_.size())
        return;
    elementos_.removeAt(indice);
    Q_EMIT PresentacionCambiada();
}

void Lista::Clear()
{
    elementos_.clear();
    Q_EMIT PresentacionCambiada();
}

void Lista::setText(const QString& texto)
{
    if (!cerrada_) {
        CampoTexto::setText(texto);
        return;
    }
    if (texto == Text())
        return;
    const bool enLista = elementos_.contains(texto);
    if (enLista || !Text().isEmpty())
        CambiarTexto(enLista ? texto : QString());
    if (enLista)
        Q_EMIT Click();
}

void Lista::Elegir(int indice)
{
    if (indice < 0 || indice >= elementos_.size())
        return;
    Asignar(elementos_.at(indice));
    Q_EMIT PresentacionCambiada();
    Q_EMIT Click();
}

} // namespace valmerix
