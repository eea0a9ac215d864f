#include "common/number_reading.h"
#include "support/random_case.h"
#include "support/stored_cases.h"

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

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
        for (const CampoCaso* campo : azar.CamposBarajados(forma->letra()))
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
