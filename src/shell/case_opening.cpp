#include "shell/case_opening.h"

#include "store/case_loading.h"
#include "store/case_saving.h"
#include "valuation/case_form.h"
#include "valuation/kind_descriptions.h"

#include <array>

namespace valmerix {

namespace {

using Cargador = void (*)(CasoAbierto&, EstadoCompartido&, const QString&, const QString&, qint32);
using Guardador = bool (*)(CasoAbierto&, EstadoCompartido&, Dialogos&);

/// A kind of property: the letter of its cases, its window, its loader and its saver.
struct FilaTipo
{
    QStringView letra;
    QStringView forma;
    Cargador cargar = nullptr;
    Guardador salvar = nullptr;
};

// In the order of the new-case buttons.
constexpr std::array kTipos = {
    FilaTipo{u"P", u"Piso", CargaVivienda, SalvaVivienda},
    FilaTipo{u"A", u"Apto", CargaVivienda, SalvaVivienda},
    FilaTipo{u"C", u"Casa", CargaVivienda, SalvaVivienda},
    FilaTipo{u"T", u"Trno"},
    FilaTipo{u"N", u"Nave"},
    FilaTipo{u"L", u"Loca"},
};

const FilaTipo* TipoDeForma(const QString& forma)
{
    for (const FilaTipo& fila : kTipos) {
        if (fila.forma == forma)
            return &fila;
    }
    return nullptr;
}

} // namespace

QString LetraDelBoton(int indice)
{
    return kTipos.at(static_cast<size_t>(indice)).letra.toString();
}

std::vector<bool> TiposHechos()
{
    std::vector<bool> hechos;
    hechos.reserve(kTipos.size());
    for (const FilaTipo& fila : kTipos)
        hechos.push_back(DescripcionDe(fila.letra.front()) != nullptr);
    return hechos;
}

void CargarCaso(Formulario& forma, EstadoCompartido& compartido, const ClaveCaso& caso)
{
    const FilaTipo* tipo = TipoDeForma(forma.nombre());
    if (tipo && tipo->cargar)
        tipo->cargar(forma, compartido, caso.Tipo, caso.NombreTasador, caso.NumeroTasacion);
}

void GuardarCaso(Formulario& forma, EstadoCompartido& compartido, Dialogos& dialogos)
{
    const FilaTipo* tipo = TipoDeForma(forma.nombre());
    if (tipo && tipo->salvar)
        tipo->salvar(forma, compartido, dialogos);
}

QString MensajeDe(const std::exception& fallo)
{
    if (const auto* almacen = dynamic_cast<const ErrorAlmacen*>(&fallo))
        return almacen->mensaje();
    return QString::fromUtf8(fallo.what());
}

} // namespace valmerix
