#pragma once

#include "store/case_fields.h"
#include "valuation/case_form.h"

#include <QDate>
#include <gtest/gtest.h>
#include <random>
#include <utility>
#include <vector>

namespace valmerix {

/// Values and orders for random cases of the dwellings. The numbers of the generator are the same everywhere.
class Azar
{
public:
    explicit Azar(unsigned semilla)
        : generador_(semilla)
    {
    }

    int hasta(int tope) { return static_cast<int>(generador_() % static_cast<unsigned>(tope)); }
    bool una_de(int veces) { return hasta(veces) == 0; }

    QString Texto()
    {
        constexpr QStringView kLetras = u"aáeéiíoóuúüñÑçÇàbcdBCD .,;:()-ºª€m²%’“”«»0123456789";
        QString texto;
        for (int i = una_de(3) ? 0 : 1 + hasta(18); i > 0; --i)
            texto += kLetras[hasta(static_cast<int>(kLetras.size()))];
        return texto.trimmed();
    }
    /// Empty, or above 0: a typed zero is shown as an empty box when it comes back.
    QString Numero(const CampoCaso& campo)
    {
        if (una_de(4))
            return {};
        const int entero = 1 + hasta(campo.columna == u"Consolidacion" ? 100 : 240);
        QString texto = QString::number(entero);
        if (campo.decimalesVista == 2 && una_de(2))
            texto += u',' + QString::number(100 + hasta(100)).mid(1);
        return texto;
    }
    /// The fields that a kind reads, in any order.
    std::vector<const CampoCaso*> CamposBarajados(QStringView letra)
    {
        std::vector<const CampoCaso*> campos;
        for (const CampoCaso& campo : CamposDeCaso()) {
            if (campo.es(TipoDeLetra(letra)) && campo.seLee())
                campos.push_back(&campo);
        }
        for (size_t i = campos.size(); i > 1; --i)
            std::swap(campos[i - 1], campos[static_cast<size_t>(hasta(static_cast<int>(i)))]);
        return campos;
    }

    /// Writes a field as a procedure would, without moving the focus.
    void Llenar(const Formulario& forma, const CampoCaso& campo)
    {
        switch (campo.forma) {
        case FormaCampo::Texto:
            return LlenarTexto(forma.campo(campo.controles));
        case FormaCampo::Fecha:
            return forma.campo(campo.controles)
                .setText(QDate(2000, 1, 1).addDays(hasta(9000)).toString(QStringLiteral("dd/MM/yyyy")));
        case FormaCampo::Numero:
        case FormaCampo::Habitantes:
            return forma.campo(campo.controles).setText(Numero(campo));
        case FormaCampo::Casilla:
        case FormaCampo::Casillas:
            for (const QStringView nombre : campo.controles.split(u'|'))
                forma.casilla(nombre).setValue(hasta(2));
            return;
        case FormaCampo::Opcion: {
            GrupoOpciones& grupo = forma.opciones(campo.controles);
            return grupo.Elegir(hasta(grupo.Count()));
        }
        default:
            FAIL() << "no dwelling has such a field: " << campo.columna.toString().toStdString();
        }
    }

private:
    void LlenarTexto(CampoTexto& campo)
    {
        const auto* lista = dynamic_cast<const Lista*>(&campo);
        const bool elige = lista != nullptr && lista->ListCount() > 0 && una_de(2);
        campo.setText(elige ? lista->List().at(hasta(lista->ListCount())) : Texto());
    }

    std::mt19937 generador_;
};

} // namespace valmerix
