#include "common/number_reading.h"
#include "store/case_fields.h"
#include "valuation/stored_cases.h"

#include <algorithm>
#include <random>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

/// Fills a case window as nobody would, in any order. The numbers of the generator are the same everywhere.
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
    void Barajar(std::vector<const CampoCaso*>& campos)
    {
        for (size_t i = campos.size(); i > 1; --i)
            std::swap(campos[i - 1], campos[static_cast<size_t>(hasta(static_cast<int>(i)))]);
    }

    void Llenar(const Formulario& forma, const CampoCaso& campo)
    {
        switch (campo.forma) {
        case FormaCampo::Texto:
            return LlenarTexto(forma.campo(campo.controles));
        case FormaCampo::Fecha:
            return forma.campo(campo.controles)
                .setText(QDate(2000, 1, 1).addDays(hasta(9000)).toString(u"dd/MM/yyyy"_s));
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

/// A text and the option that goes with it; the order is that of loading.
struct TextoConOpcion
{
    QString texto;
    QString opcion;
    QString indice;
};

const TextoConOpcion kTextosConOpcion[] = {
    {u"TextoFinalidad"_s, u"OpcionFinalidad"_s, u"4"_s},
    {u"TextoSatelite"_s, u"OpcionTipoNucleo"_s, u"2"_s},
    {u"TextoTipoNucleo"_s, u"OpcionTipoNucleo"_s, u"3"_s},
    {u"TextoCarpinteriaInterior"_s, u"CarpinteriaInterior"_s, u"4"_s},
    {u"TextoCarpinteriaExterior"_s, u"CarpinteriaExterior"_s, u"4"_s},
    {u"TextoMobiliarioK"_s, u"MobiliarioK"_s, u"4"_s},
    {u"TextoAcabadoInterior"_s, u"AcabadoInterior"_s, u"2"_s},
};

/// What opening a row and saving it makes of it: the fields' own rules run while they are filled.
FilaDeCaso TrasAbrirYSalvar(FilaDeCaso fila)
{
    for (const TextoConOpcion& regla : kTextosConOpcion) {
        if (!fila[regla.texto].isEmpty())
            fila[regla.opcion] = regla.indice;
    }
    if (!fila[u"TextoDocumentacion"_s].isEmpty())
        fila[u"Documentacion"_s][3] = u'1';
    int anexo = 0;
    for (const QString& valor : {u"ValorTrastero"_s, u"ValorGaraje"_s, u"ValorAnexo"_s}) {
        if (LeerNumero(fila[valor]) == 0)
            fila[u"Anexos"_s][anexo] = u'0';
        ++anexo;
    }
    return fila;
}

class IdaYVuelta : public CasosGuardados, public testing::WithParamInterface<const DescripcionForma*>
{
protected:
    qint32 GuardarUnoAlAzar(Azar& azar)
    {
        const auto forma = Nuevo(*GetParam());
        std::vector<const CampoCaso*> campos;
        for (const CampoCaso& campo : CamposDeCaso()) {
            if (campo.es(TipoDeLetra(forma->letra())) && campo.seLee())
                campos.push_back(&campo);
        }
        azar.Barajar(campos);
        for (const CampoCaso* campo : campos)
            azar.Llenar(*forma, *campo);
        forma->PonerFraseUrbanistica(azar.Texto());
        for (int i = azar.hasta(3); i > 0; --i)
            forma->rejilla(u"GridImagen").AddItem(u"/fotos\tNº %1 %2"_s.arg(i).arg(azar.Texto()));
        // The total as it stands with all that is written.
        if (!forma->texto(u"BoxProvisional").isEmpty())
            forma->DejarCampo(u"BoxProvisional");
        forma->Recalcular();
        if (forma->texto(u"BoxK").isEmpty())
            forma->campo(u"BoxTotal").setText({});
        return Salvar(*forma);
    }
    QStringList Hijos(qint32 numero) const
    {
        QStringList lineas;
        for (const QString& tabla : {u"ProblemasUrbanisticos"_s, u"ImagenesAsociadas"_s}) {
            const ConjuntoResultados filas =
                almacen.Leer(u"SELECT * FROM %1 WHERE NumeroTasacion = %2"_s.arg(tabla).arg(numero));
            for (qint32 i = 1; i <= filas.RecordCount(); ++i)
                lineas << filas.ValorRegistroGrid(i);
        }
        return lineas;
    }
};

} // namespace

TEST_P(IdaYVuelta, ACaseOpenedAndSavedIsTheSameRowButForWhatItsTextsChoose)
{
    constexpr int kCasos = 40;
    constexpr unsigned kSemilla = 20261121;
    Azar azar(kSemilla);
    int cambiados = 0;
    for (int caso = 0; caso < kCasos; ++caso) {
        SCOPED_TRACE(caso);
        const qint32 numero = GuardarUnoAlAzar(azar);
        const FilaDeCaso primera = Vivienda(numero);
        const FilaDeCaso espejo = Testigo(numero);
        const QStringList hijos = Hijos(numero);
        ASSERT_GT(primera.size(), 90);

        AbrirYSalvar(*GetParam(), numero);
        const FilaDeCaso segunda = Vivienda(numero);
        EXPECT_EQ(Diferencias(TrasAbrirYSalvar(primera), segunda), QString());
        EXPECT_EQ(Diferencias(espejo, Testigo(numero)), QString());
        EXPECT_EQ(Hijos(numero), hijos);
        cambiados += segunda != primera ? 1 : 0;

        AbrirYSalvar(*GetParam(), numero);
        EXPECT_EQ(Diferencias(segunda, Vivienda(numero)), QString()) << "and from then on nothing changes";
    }
    EXPECT_GT(cambiados, kCasos / 4) << "too tame a chance to try the rules";
    EXPECT_LT(cambiados, kCasos) << "and some cases come back untouched";
    EXPECT_EQ(almacen.Dato(u"SELECT COUNT(*) FROM Viviendas"_s), QString::number(kCasos));
}

TEST_P(IdaYVuelta, TheRulesOfTheFieldsRunOnWhatARowHolds)
{
    struct Cambio
    {
        QString guardado;
        QString columna;
        QString resulta;
    };
    const Cambio kCambios[] = {
        {u"OpcionFinalidad = 0, TextoFinalidad = 'x'"_s, u"OpcionFinalidad"_s, u"4"_s},
        {u"OpcionFinalidad = 2, TextoFinalidad = ''"_s, u"OpcionFinalidad"_s, u"2"_s},
        {u"OpcionTipoNucleo = 0, TextoSatelite = 'x'"_s, u"OpcionTipoNucleo"_s, u"2"_s},
        {u"OpcionTipoNucleo = 1, TextoTipoNucleo = 'x'"_s, u"OpcionTipoNucleo"_s, u"3"_s},
        {u"OpcionTipoNucleo = 2, TextoSatelite = 'x', TextoTipoNucleo = 'y'"_s, u"OpcionTipoNucleo"_s,
         u"3"_s},
        {u"CarpinteriaInterior = 1, TextoCarpinteriaInterior = 'x'"_s, u"CarpinteriaInterior"_s, u"4"_s},
        {u"CarpinteriaExterior = 2, TextoCarpinteriaExterior = 'x'"_s, u"CarpinteriaExterior"_s, u"4"_s},
        {u"MobiliarioK = 3, TextoMobiliarioK = 'x'"_s, u"MobiliarioK"_s, u"4"_s},
        {u"AcabadoInterior = 0, TextoAcabadoInterior = 'x'"_s, u"AcabadoInterior"_s, u"2"_s},
        {u"Documentacion = '1010', TextoDocumentacion = 'x'"_s, u"Documentacion"_s, u"1011"_s},
        {u"Documentacion = '0101', TextoDocumentacion = ''"_s, u"Documentacion"_s, u"0101"_s},
        {u"Anexos = '100', ValorTrastero = 0"_s, u"Anexos"_s, u"000"_s},
        {u"Anexos = '111', ValorTrastero = 0, ValorGaraje = 5, ValorAnexo = 0"_s, u"Anexos"_s, u"010"_s},
        {u"Consolidacion = 150"_s, u"Consolidacion"_s, u"100"_s},
        {u"Consolidacion = 100"_s, u"Consolidacion"_s, u"100"_s},
    };
    for (const Cambio& cambio : kCambios) {
        SCOPED_TRACE(cambio.guardado.toStdString());
        const qint32 numero = Salvar(*Nuevo(*GetParam()));
        almacen.Ejecutar(
            u"UPDATE Viviendas SET %1 WHERE NumeroTasacion = %2"_s.arg(cambio.guardado).arg(numero));
        AbrirYSalvar(*GetParam(), numero);
        EXPECT_EQ(Vivienda(numero)[cambio.columna], cambio.resulta);
    }
}

INSTANTIATE_TEST_SUITE_P(Viviendas, IdaYVuelta,
                         testing::Values(&kDescripcionPiso, &kDescripcionApto, &kDescripcionCasa),
                         [](const auto& caso) { return caso.param->ventana.toString().toStdString(); });

} // namespace valmerix
