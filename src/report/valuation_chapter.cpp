#include "report/valuation_chapter.h"

#include "common/number_pattern.h"
#include "report/draft_context.h"

#include <QStringBuilder>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kRazonSuperficies = u"###,##0.00";
constexpr QStringView kRazonEnFormula = u"##0.00";

void Siendo(Redaccion& r)
{
    r.L1(r.sobreUtil() ? u"CR = [RS + Cc * (1 - D)] * R" : u"CR = RS + Cc * (1 - D)");
    r.NL();
    r.L2(u"Siendo:");
    r.NL();
    r.L2(u"RS : Repercusión de suelo urbanizado por m² construido");
    r.NL();
    r.L2(u"Cc : Coste de construcción, considerado como el necesario para realizar la edificación expresado "
         u"en "_s +
         r.Abr() + u"/m² construido."_s);
    r.NL();
    r.L2(QString(
        u"D :  Coeficiente de depreciación lineal por uso y antigüedad. Será el cociente resultante de "
        u"dividir la edad actual del inmueble entre su vida útil total, que para "_s %
        r.plan.ambitoEdad % u" se estima de "_s % QString::number(r.caso.opciones.*r.plan.edad) %
        u" años."_s));
    if (r.sobreUtil()) {
        r.NL();
        r.L2(u"R :  Cociente resultante de dividir la superficie construida entre la superficie útil.");
    }
    r.NL();
    r.L2(u"RS = Valor de mercado del solar / Sup.Construida sobre rasante");
    r.NL();
}

void Operaciones(Redaccion& r)
{
    const CadenasNumericas& t = r.cadenas;
    const QString porMetro = u' ' + r.Abr() + u"/m²"_s;
    const QString Vs = Formatear(r.caso.calculo.ValorUnitarioSuelo.aDouble() * r.caso.calculo.SuperficieSolar,
                                 r.caso.compartido.FormatoMoneda);
    r.L2(u"Valor del solar  =  ("_s + t.TxtSolar + u"  *  "_s + t.TxtSueloUnitario + u")  =  "_s + Vs + u' ' +
         r.Abr() + u'.');
    r.NL();
    r.L2(u"RS  =   "_s + Vs + u"  /  "_s + t.TxtSobreRasante);
    r.NL();
    r.L2(u"RS  =  "_s + t.TxtRS + porMetro);
    r.NL();
    r.L2(u"Cc  =  "_s + t.TxtCc + porMetro);
    r.NL();
    r.L2(u"D  =  "_s + t.TxtD);
    if (r.sobreUtil()) {
        r.NL();
        r.L2(u"R  =  "_s + t.TxtConstruida + u" / "_s + t.TxtUtil);
        r.NL();
        r.L2(u"R  =  "_s + Formatear(r.caso.calculo.CoefConstruidaUtil, kRazonSuperficies));
    }
    r.NL(2);
}

void CosteDeReposicion(Redaccion& r)
{
    if (r.Apartado(u"Coste de reposición (CR)"_s).isEmpty()) {
        return;
    }
    Siendo(r);
    Operaciones(r);
    const CadenasNumericas& t = r.cadenas;
    const QString porMetro = u' ' + r.Abr() + u"/m²"_s;
    const QString suma =
        t.TxtRS + porMetro + u"  +  "_s + t.TxtCc + porMetro + u"  * (1 - "_s + t.TxtD + u')';
    r.L2(r.sobreUtil() ? u"CR  =  [ "_s + suma + u" ] * "_s +
                             Formatear(r.caso.calculo.CoefConstruidaUtil, kRazonEnFormula)
                       : u"CR  =  "_s + suma);
    r.NL();
    r.L2(u"CR  =  "_s + t.TxtCR + porMetro);
    r.NL();
}

void Comparativa(Redaccion& r)
{
    r.L1(u"A continuación incluimos un resumen de las operaciones utilizadas en la comparativa.");
    r.L1(r.ResumenTestigos);
}

void CoeficienteDeMercado(Redaccion& r)
{
    if (r.Apartado(u"Coeficiente de mercado (K)"_s).isEmpty()) {
        return;
    }
    r.L1(u"Como resultado del estudio de las ventas en el entorno de inmuebles de similares características "
         u"al que se tasa, es posible hallar diferencias entre el valor de coste y el valor de venta.");
    r.NL();
    r.L1(
        u"    La media de dicha variación es lo que nosotros denominamos coeficiente  K o de mercado, que en "
        u"este caso tendrá un valor de "_s +
        r.cadenas.TxtK + u'.');
    r.NL();
    if (!r.ResumenTestigos.isEmpty()) {
        Comparativa(r);
    }
}

void ValorDeRealizacion(Redaccion& r)
{
    if (r.Apartado(u"Valor de realización (Vr)"_s).isEmpty()) {
        return;
    }
    const QString porMetro = u' ' + r.Abr() + u"/m²"_s;
    r.L1(u"Vr = CR * K");
    r.NL();
    r.L2(u"Vr  =  "_s + r.cadenas.TxtCR + porMetro + u" *  "_s + r.cadenas.TxtK);
    r.NL();
    r.L2(u"Vr  =  "_s + r.cadenas.TxtVr + porMetro);
    r.NL(3);
}

void Importe(Redaccion& r)
{
    const CadenasNumericas& t = r.cadenas;
    r.L3(u"Valor del inmueble (Vt)  =        "_s + t.TxtVt + u' ' + r.Abr());
    for (const QString& anexo : {t.LineaGaraje, t.LineaTrastero, t.LineaOtroAnexo}) {
        if (!anexo.isEmpty()) {
            r.L3(anexo);
        }
    }
    r.NL();
    r.L3(u"IMPORTE TOTAL DE TASACION:        "_s + t.TxtTotal + u' ' + r.Abr());
    r.NL(2);
    r.L0(u"     Asciende el importe de la presente tasación a la expresada cantidad de "_s + t.TotalEnLetras);
    r.NL(2);
}

void Firma(Redaccion& r)
{
    r.texto.Linea(Nivel::Firma, r.caso.texto(u"BoxPlaza") + u",  "_s + r.cadenas.FechaLarga + u'.');
    if (r.caso.ventana.marcada(u"Check1")) {
        const Lista& tasador = r.caso.ventana.lista(u"cboNombreTasador");
        r.texto.Linea(Nivel::Firma, u"El "_s + tasador.Tag());
        r.NL(5);
        r.texto.Linea(Nivel::Firma, u"Fdo.:  "_s + tasador.Text());
    }
}

} // namespace

void CalculoDeLosValoresUnitarios(Redaccion& r)
{
    if (!r.Capitulo(u"CALCULO DE LOS VALORES UNITARIOS"_s).isEmpty()) {
        CosteDeReposicion(r);
        CoeficienteDeMercado(r);
        ValorDeRealizacion(r);
    } else if (!r.ResumenTestigos.isEmpty() && !r.Capitulo(u"INFORMACION DE MERCADO"_s).isEmpty()) {
        Comparativa(r);
    }
}

void ValorDeTasacion(Redaccion& r)
{
    r.Capitulo(u"VALOR DE TASACION"_s);
    r.L1(r.sobreUtil() ? u"Vt  =  Superficie útil  *  Vr" : u"Vt  =  Superficie construida  *  Vr");
    r.NL();
    r.L1(u"Vt  =  "_s + (r.sobreUtil() ? r.cadenas.TxtUtil : r.cadenas.TxtConstruida) + u" m²  *  "_s +
         r.cadenas.TxtVr + u' ' + r.Abr() + u"/m²"_s);
    r.NL();
    Importe(r);
    Firma(r);
}

} // namespace valmerix
