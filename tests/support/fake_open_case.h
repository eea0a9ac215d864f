#pragma once

#include "store/case_fields.h"
#include "store/open_case.h"

#include <QStringList>
#include <memory>

namespace valmerix {

/// A case window of one building kind made of nothing but its stored fields, and a log of what loaders and
/// savers ask of it.
class FakeCasoAbierto : public CasoAbierto
{
public:
    Ventana ventana_;
    QStringList llamadas; ///< in order, with the argument behind a blank
    QString frase;
    Currency valorVivienda;

    explicit FakeCasoAbierto(const QString& nombre, const QStringList& tasadores = {})
        : ventana_(nombre)
    {
        ventana_.Añadir<Lista>(QStringLiteral("cboNombreTasador")).setList(tasadores);
        ventana_.Añadir<Rejilla>(QStringLiteral("GridImagen"));
        ventana_.Añadir<Rejilla>(QStringLiteral("fgrSeleccion"));
        for (const auto* rejilla : {"GridImagen", "fgrSeleccion"}) {
            ventana_.rejilla(QString::fromLatin1(rejilla))
                .setColumnas({QString(), QString(), QString()}, {0, 1000, 1000});
        }
        for (const CampoCaso& campo : CamposDeCaso()) {
            if (campo.es(TipoDeLetra(letra())))
                AñadirControles(campo);
        }
    }

    void Elegir(const QString& tasador) { ventana_.lista(u"cboNombreTasador").setText(tasador); }
    void Escribir(QStringView control, const QString& texto) { ventana_.campo(control).setText(texto); }

    /// What the stored fields hold, one line a control.
    QStringList contenido() const
    {
        QStringList lineas;
        for (const auto& control : ventana_.controles()) {
            QString valor;
            if (const auto* campo = dynamic_cast<const CampoTexto*>(control.get()))
                valor = campo->Text();
            else if (const auto* casilla = dynamic_cast<const Casilla*>(control.get()))
                valor = QString::number(casilla->Value());
            else if (const auto* opciones = dynamic_cast<const GrupoOpciones*>(control.get()))
                valor = QString::number(opciones->elegida());
            else
                continue;
            lineas << control->nombre() + QStringLiteral(" = ") + valor;
        }
        return lineas;
    }

    Ventana& ventana() override { return ventana_; }
    QString letra() const override { return ventana_.nombre().left(1); }
    void CALCULADOR() override { llamadas << QStringLiteral("CALCULADOR"); }
    void DEDUCTOR() override { llamadas << QStringLiteral("DEDUCTOR"); }
    void CASILLAS() override { llamadas << QStringLiteral("CASILLAS"); }
    void PonerValorVivienda(Currency valor) override
    {
        valorVivienda = valor;
        llamadas << QStringLiteral("PonerValorVivienda ") + valor.decimal();
    }
    void ComponerFrasesDelEdificio() override { llamadas << QStringLiteral("ComponerFrasesDelEdificio"); }
    QString fraseUrbanistica() const override { return frase; }
    void PonerFraseUrbanistica(const QString& nueva) override { frase = nueva; }
    void CargaGridImagenesAsociadas() override { llamadas << QStringLiteral("CargaGridImagenesAsociadas"); }
    void InicializarGrids(const QString& nombre) override
    {
        llamadas << QStringLiteral("InicializarGrids ") + nombre;
    }
    void CargaGridTestigosAsociados() override { llamadas << QStringLiteral("CargaGridTestigosAsociados"); }

private:
    void AñadirControles(const CampoCaso& campo)
    {
        for (const QStringView control : campo.controles.split(u'|')) {
            const QString nombre = control.toString();
            if (ventana_.buscar(nombre) != nullptr)
                continue;
            switch (campo.forma) {
            case FormaCampo::Casilla:
            case FormaCampo::Casillas:
            case FormaCampo::OpcionesSueltas:
                ventana_.Añadir<Casilla>(nombre);
                break;
            case FormaCampo::Opcion:
                ventana_.Añadir<GrupoOpciones>(nombre).setTitulos(QStringList(6, QString()));
                break;
            default:
                if (nombre.startsWith(QStringLiteral("Combo")) || nombre.startsWith(QStringLiteral("cbo")))
                    ventana_.Añadir<Lista>(nombre);
                else
                    ventana_.Añadir<CampoTexto>(nombre);
            }
        }
    }
};

} // namespace valmerix
