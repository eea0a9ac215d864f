#include "valuation/enumeration_counters.h"

namespace valmerix {

namespace {

constexpr QStringView kInfraestructuras[] = {
    u"CheckPavi", u"CheckEnci", u"CheckAlum", u"CheckAlca", u"CheckElec", u"CheckAgua", u"CheckTel",
};
constexpr QStringView kEquipamientos[] = {u"CheckCome", u"CheckSan", u"CheckPol", u"CheckEdu", u"CheckAdmi"};
constexpr QStringView kOcio[] = {u"CheckPark", u"CheckDep", u"CheckCine", u"CheckTea", u"CheckBar"};
constexpr QStringView kComunicaciones[] = {
    u"CheckNac", u"CheckAutov", u"CheckAut", u"CheckLoc", u"CheckBus", u"CheckTren", u"CheckMetro",
};
constexpr QStringView kServiciosComunes[] = {
    u"CheckPis", u"CheckDep2", u"CheckApar", u"CheckJardin", u"CheckCol", u"CheckPort",
};
constexpr QStringView kPavimentos[] = {
    u"CheckTerrazo", u"CheckCeramico", u"CheckMadera", u"CheckMarmol", u"CheckBaldosa",
};
constexpr QStringView kDistribucion[] = {
    u"CheckCocina", u"CheckGaleria", u"CheckComedor", u"CheckEstar", u"CheckDormitorios",
    u"CheckOtros",  u"CheckOtros2",  u"CheckBaños",   u"CheckAseos", u"CheckTerrazas",
};
constexpr QStringView kDocumentos[] = {
    u"CheckEscritura",
    u"CheckLicencia",
    u"CheckContribucion",
    u"CheckOtra",
};
constexpr QStringView kServiciosIndividuales[] = {
    u"CheckPis2", u"CheckDep3", u"CheckApar2", u"CheckJardin2", u"CheckCol2", u"CheckHuerto",
};

// In the order of GrupoCasillas.
constexpr std::array<std::span<const QStringView>, kGruposCasillas> kGrupos{
    kInfraestructuras, kEquipamientos, kOcio,       kComunicaciones,        kServiciosComunes,
    kPavimentos,       kDistribucion,  kDocumentos, kServiciosIndividuales,
};

} // namespace

std::span<const QStringView> CasillasDe(GrupoCasillas grupo)
{
    return kGrupos.at(static_cast<size_t>(grupo));
}

ContadoresEnumeracion::ContadoresEnumeracion(const Ventana& ventana)
{
    for (size_t g = 0; g < kGrupos.size(); ++g) {
        const auto nombres = kGrupos.at(g);
        grupos_.at(g).resize(nombres.size());
        for (size_t i = 0; i < nombres.size(); ++i) {
            const auto* casilla = dynamic_cast<const Casilla*>(ventana.buscar(nombres[i]));
            if (!casilla)
                continue;
            QObject::connect(casilla, &Casilla::Click, &ventana,
                             [this, g, i, casilla] { Contar(g, i, casilla->Value() == 1); });
        }
    }
}

void ContadoresEnumeracion::Recontar(const Ventana& ventana)
{
    for (size_t g = 0; g < kGrupos.size(); ++g) {
        grupos_.at(g).assign(grupos_.at(g).size(), {});
        for (size_t i = 0; i < kGrupos.at(g).size(); ++i) {
            const auto* casilla = dynamic_cast<const Casilla*>(ventana.buscar(kGrupos.at(g)[i]));
            if (casilla && casilla->Value() == 1)
                Contar(g, i, true);
        }
    }
}

void ContadoresEnumeracion::Contar(size_t grupo, size_t item, bool marcada)
{
    const auto paso = static_cast<quint8>(marcada ? 1 : -1);
    std::vector<Pareja>& items = grupos_.at(grupo);
    for (size_t i = 0; i < items.size(); ++i) {
        if (i > item)
            items[i].antes = static_cast<quint8>(items[i].antes + paso);
        if (i < item)
            items[i].despues = static_cast<quint8>(items[i].despues + paso);
    }
}

const ContadoresEnumeracion::Pareja& ContadoresEnumeracion::pareja(GrupoCasillas grupo, size_t i) const
{
    return grupos_.at(static_cast<size_t>(grupo)).at(i);
}

const ContadoresEnumeracion::Pareja* ContadoresEnumeracion::buscar(QStringView casilla) const
{
    for (size_t g = 0; g < kGrupos.size(); ++g) {
        const auto nombres = kGrupos.at(g);
        for (size_t i = 0; i < nombres.size(); ++i) {
            if (nombres[i] == casilla)
                return &grupos_.at(g)[i];
        }
    }
    return nullptr;
}

quint8 ContadoresEnumeracion::Antes(QStringView casilla) const
{
    const Pareja* hallada = buscar(casilla);
    return hallada ? hallada->antes : quint8{0};
}

quint8 ContadoresEnumeracion::Despues(QStringView casilla) const
{
    const Pareja* hallada = buscar(casilla);
    return hallada ? hallada->despues : quint8{0};
}

} // namespace valmerix
