#include "report/report_fixture.h"

#include "report/drafting.h"

#include <stdexcept>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kCampos[] = {
    u"BoxPlaza",    u"BoxFecha",  u"BoxSit",           u"BoxMun",          u"BoxProv",     u"BoxCP",
    u"BoxNomSol",   u"BoxNIFSol", u"BoxDomSol",        u"BoxCPSol",        u"BoxPobSol",   u"BoxProvSol",
    u"txtRegistro", u"BoxTomo",   u"BoxLibro",         u"BoxFolio",        u"BoxFinca",    u"BoxInsc",
    u"BoxAnot",     u"BoxFin",    u"BoxDerecho",       u"BoxHecho",        u"BoxSatelite", u"BoxOtroNucleo",
    u"BoxPorcen",   u"BoxRoble",  u"BoxHierro",        u"BoxMobK",         u"BoxLisa",     u"BoxDormitorios",
    u"BoxOtros",    u"BoxOtros2", u"txtOtros",         u"txtOtros2",       u"BoxBaños",    u"BoxAseos",
    u"BoxTerrazas", u"Text8",     u"BoxDocumentacion", u"txtObservaciones"};

constexpr QStringView kListas[] = {
    u"cboNombreTasador", u"Combo1",        u"Combo2",       u"Combo3",         u"Combo4",
    u"Combo5",           u"Combo7",        u"Combo8",       u"ComboTipol",     u"ComboBaja",
    u"ComboEstructura",  u"ComboCubierta", u"ComboFachada", u"ComboEscalera1", u"ComboEscalera2",
    u"ComboZaguan1",     u"ComboZaguan2"};

constexpr QStringView kCasillas[] = {
    u"Check1",      u"CheckPavi",        u"CheckEnci",      u"CheckAlum",     u"CheckAlca",
    u"CheckElec",   u"CheckAgua",        u"CheckTel",       u"CheckCome",     u"CheckSan",
    u"CheckPol",    u"CheckEdu",         u"CheckAdmi",      u"CheckPark",     u"CheckDep",
    u"CheckCine",   u"CheckTea",         u"CheckBar",       u"CheckNac",      u"CheckAutov",
    u"CheckAut",    u"CheckLoc",         u"CheckBus",       u"CheckTren",     u"CheckMetro",
    u"CheckPis",    u"CheckDep2",        u"CheckApar",      u"CheckJardin",   u"CheckCol",
    u"CheckPort",   u"CheckPis2",        u"CheckDep3",      u"CheckApar2",    u"CheckJardin2",
    u"CheckCol2",   u"CheckHuerto",      u"CheckTerrazo",   u"CheckCeramico", u"CheckMadera",
    u"CheckMarmol", u"CheckBaldosa",     u"CheckCocina",    u"CheckGaleria",  u"CheckComedor",
    u"CheckEstar",  u"CheckDormitorios", u"CheckOtros",     u"CheckOtros2",   u"CheckBaños",
    u"CheckAseos",  u"CheckTerrazas",    u"CheckEscritura", u"CheckLicencia", u"CheckContribucion",
    u"CheckOtra"};

struct GrupoDePrueba
{
    QStringView nombre;
    int opciones;
};

constexpr GrupoDePrueba kGrupos[] = {
    {u"Finalidad", 5}, {u"TipoNucleo", 4}, {u"OptionEstado", 6}, {u"CarpInt", 5}, {u"CarpExt", 5},
    {u"MobK", 5},      {u"Interior", 3},   {u"Sup", 2},          {u"Conserv", 4}, {u"Calidad", 4}};

} // namespace

CasoDePrueba::CasoDePrueba(const QString& tipo)
    : ventana(tipo)
    , caso{ventana, tipo, calculo, frases, opciones, compartido}
{
    compartido.FormatoMoneda = u"###,###,##0.00"_s;
    for (const QStringView nombre : kCampos)
        ventana.Añadir<CampoTexto>(nombre.toString());
    for (const QStringView nombre : kListas)
        ventana.Añadir<Lista>(nombre.toString());
    for (const QStringView nombre : kCasillas)
        ventana.Añadir<Casilla>(nombre.toString());
    for (const GrupoDePrueba& grupo : kGrupos)
        ventana.Añadir<GrupoOpciones>(grupo.nombre.toString())
            .setTitulos(QStringList(grupo.opciones, u"-"_s));
    for (int i = 0; i < kApartadosDePrueba; ++i)
        ventana.Añadir<Casilla>(Ventana::Indice(u"chkApartados", i));
    for (int i = 0; i < kPuntosDePrueba; ++i)
        ventana.Añadir<Casilla>(Ventana::Indice(u"chkPuntos", i));
    ventana.Añadir<Rejilla>(u"fgrSeleccion"_s).setColumnas(QStringList(9), std::vector<int>(9, 100));
}

void CasoDePrueba::Escribir(std::initializer_list<std::pair<QStringView, QStringView>> textos)
{
    for (const auto& [nombre, texto] : textos)
        ventana.campo(nombre).setText(texto.toString());
}

void CasoDePrueba::Marcar(std::initializer_list<QStringView> casillas, int valor)
{
    for (const QStringView nombre : casillas)
        ventana.casilla(nombre).setValue(valor);
}

void CasoDePrueba::Apartados(std::initializer_list<int> indices, int valor)
{
    for (const int i : indices)
        ventana.casilla(Ventana::Indice(u"chkApartados", i)).setValue(valor);
}

void CasoDePrueba::Puntos(std::initializer_list<int> indices, int valor)
{
    for (const int i : indices)
        ventana.casilla(Ventana::Indice(u"chkPuntos", i)).setValue(valor);
}

void CasoDePrueba::Perfil(bool encendido)
{
    for (int i = 0; i < kApartadosDePrueba; ++i)
        Apartados({i}, encendido ? 1 : 0);
    for (int i = 0; i < kPuntosDePrueba; ++i)
        Puntos({i}, encendido ? 1 : 0);
}

QStringList CasoDePrueba::lineas() const
{
    QString texto = Redactar(caso);
    if (!texto.endsWith(u"\r\n"_s))
        throw std::logic_error("The report does not end in a line end.");
    texto.chop(2);
    return texto.split(u"\r\n"_s);
}

QStringList CasoDePrueba::trasTitulo(QStringView titulo) const
{
    const QStringList todas = lineas();
    qsizetype i = 0;
    while (i < todas.size() && !todas[i].endsWith(titulo))
        ++i;
    QStringList resultado;
    for (++i; i < todas.size() && !todas[i].isEmpty(); ++i)
        resultado.append(todas[i]);
    return resultado;
}

void RellenarPiso(CasoDePrueba& piso)
{
    piso.Perfil(true);
    piso.Escribir({{u"BoxPlaza", u"Valencia"},
                   {u"BoxFecha", u"20/11/2026"},
                   {u"cboNombreTasador", u"Núria Ferrándiz Ibáñez"},
                   {u"BoxSit", u"C/ Peñíscola, 14, 3.º, pta. 6"},
                   {u"BoxMun", u"Sueca"},
                   {u"BoxProv", u"Valencia"},
                   {u"BoxCP", u"46410"},
                   {u"BoxNomSol", u"D. Íñigo Muñoz Carrión"},
                   {u"BoxNIFSol", u"19.876.543-K"},
                   {u"BoxDomSol", u"Av. del Puerto, 3"},
                   {u"BoxCPSol", u"46021"},
                   {u"BoxPobSol", u"València"},
                   {u"BoxProvSol", u"Valencia"},
                   {u"txtRegistro", u"n.º 2 de Sueca"},
                   {u"BoxTomo", u"1203"},
                   {u"BoxLibro", u"410"},
                   {u"BoxFolio", u"77"},
                   {u"BoxFinca", u"30.112"},
                   {u"BoxInsc", u"3"},
                   {u"BoxAnot", u"B"},
                   {u"BoxDerecho", u"27.650"},
                   {u"BoxHecho", u"31.200"},
                   {u"BoxPorcen", u"85"},
                   {u"Combo1", u"Agricultura"},
                   {u"Combo2", u"Medio"},
                   {u"Combo3", u"Crecimiento lento"},
                   {u"Combo4", u"Casco antíguo"},
                   {u"Combo5", u"Residencial"},
                   {u"ComboTipol", u"Entre medianeras"},
                   {u"ComboBaja", u"Comercial"},
                   {u"ComboEstructura", u"Hormigón"},
                   {u"ComboCubierta", u"Plana pisable"},
                   {u"ComboFachada", u"Ladrillo caravista"},
                   {u"ComboEscalera1", u"Amplia"},
                   {u"ComboEscalera2", u"Bien acabada"},
                   {u"ComboZaguan1", u"Pequeño"},
                   {u"ComboZaguan2", u"Calidad sencilla"},
                   {u"Combo7", u"sótano primero"},
                   {u"Combo8", u"ático"},
                   {u"Text8", u"PLAZA de moto"},
                   {u"BoxDormitorios", u"3"},
                   {u"BoxBaños", u"1"},
                   {u"BoxAseos", u"1"},
                   {u"BoxTerrazas", u"2"},
                   {u"BoxOtros", u"1"},
                   {u"txtOtros", u"Despacho"},
                   {u"BoxDocumentacion", u"Nota simple"},
                   {u"txtObservaciones", u"Se visitó el inmueble."}});
    piso.Marcar({u"CheckPavi",     u"CheckAlum",        u"CheckAgua",     u"CheckCome",   u"CheckSan",
                 u"CheckPark",     u"CheckDep",         u"CheckNac",      u"CheckBus",    u"CheckTren",
                 u"CheckPort",     u"CheckTerrazo",     u"CheckCeramico", u"CheckCocina", u"CheckGaleria",
                 u"CheckEstar",    u"CheckDormitorios", u"CheckOtros",    u"CheckBaños",  u"CheckAseos",
                 u"CheckTerrazas", u"CheckEscritura",   u"CheckOtra"});
    for (const auto& [grupo, opcion] :
         std::initializer_list<std::pair<QStringView, int>>{{u"Finalidad", 0},
                                                            {u"TipoNucleo", 1},
                                                            {u"OptionEstado", 1},
                                                            {u"CarpInt", 2},
                                                            {u"CarpExt", 0},
                                                            {u"MobK", 1},
                                                            {u"Interior", 0},
                                                            {u"Sup", 1},
                                                            {u"Conserv", 0},
                                                            {u"Calidad", 2}})
        piso.Elegir(grupo, opcion);
    piso.frases = {u"Tiene veintiun años."_s,
                   u"cuatro plantas altas con "_s,
                   u"dos viviendas por planta."_s,
                   u"Solo cuenta con un ascensor."_s,
                   u" Existe además una planta bajo rasante destinada a garaje."_s,
                   u"Cumple toda la normativa urbanística existente en Sueca."_s};
    EstadoCalculo& e = piso.calculo;
    e.SuperficieUtil = 92.5;
    e.SuperficieConstruida = 111.75;
    e.SuperficieSolar = 280;
    e.SuperficieSobreRasante = 1117.5;
    e.CoeficienteK = 1.35;
    e.CoefConstruidaUtil = 111.75 / 92.5;
    e.CoefDepreciacion = 0.21;
    e.RepercusionSolar = Currency::de(300);
    e.CosteConstruccion = Currency::de(650);
    e.ValorReposicion = Currency::de(813.5);
    e.ValorUnitario = Currency::de(1098.225);
    e.ValorVivienda = Currency::de(122726.64);
    e.ValorTrastero = Currency::de(4500);
    e.ValorGaraje = Currency::de(15000);
    e.ValorOtroAnexo = Currency::de(2000.5);
    e.ValorTotal = Currency::de(144227.14);
    e.ValorUnitarioSuelo = Currency::de(1197.32);
}

} // namespace valmerix
