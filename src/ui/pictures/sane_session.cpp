#include "ui/pictures/sane_session.h"

#include "ui/pictures/sane_options.h"
#include "ui/pictures/scan_frames.h"

#include <chrono>
#include <sane/sane.h>
#include <thread>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kTrozo = qsizetype{64} << 10;
constexpr qsizetype kMayor = qsizetype{400}
                             << 20; // bytes of one frame: far beyond any sheet at our resolution
constexpr std::chrono::milliseconds kPausa(10);
constexpr std::chrono::milliseconds kAsentarse(150);

struct TextoDeEstado
{
    SANE_Status estado;
    QStringView texto;
};

constexpr TextoDeEstado kTextos[] = {
    {SANE_STATUS_UNSUPPORTED, u"El escáner no admite esta operación."},
    {SANE_STATUS_CANCELLED, u"La digitalización se ha cancelado en el escáner."},
    {SANE_STATUS_DEVICE_BUSY, u"El escáner está ocupado; puede que lo use otro programa."},
    {SANE_STATUS_INVAL, u"El escáner no acepta lo que se le pide o se ha desconectado."},
    {SANE_STATUS_EOF, u"El escáner no ha dado ninguna imagen."},
    {SANE_STATUS_JAMMED, u"El papel se ha atascado en el escáner."},
    {SANE_STATUS_NO_DOCS, u"No hay ningún documento en el escáner."},
    {SANE_STATUS_COVER_OPEN, u"La tapa del escáner está abierta."},
    {SANE_STATUS_IO_ERROR, u"Se ha perdido la comunicación con el escáner."},
    {SANE_STATUS_NO_MEM, u"No queda memoria para digitalizar la imagen."},
    {SANE_STATUS_ACCESS_DENIED, u"No hay permiso para usar el escáner."},
};

QString TextoDe(SANE_Status estado)
{
    for (const TextoDeEstado& fila : kTextos) {
        if (fila.estado == estado)
            return fila.texto.toString();
    }
    return u"El escáner ha fallado (%1)."_s.arg(QString::fromLocal8Bit(sane_strstatus(estado)));
}

void Exigir(SANE_Status estado)
{
    if (estado != SANE_STATUS_GOOD)
        throw ErrorEscaner(TextoDe(estado));
}

// The library keeps its state for the whole process.
std::mutex& Turno()
{
    static std::mutex turno;
    return turno;
}

/// An open scanner.
class Aparato
{
public:
    explicit Aparato(const QByteArray& nombre) { Exigir(sane_open(nombre.constData(), &asa_)); }
    ~Aparato()
    {
        // Drivers end their reading thread by force, wherever it is: one that has only just begun to fetch
        // its memory would leave the process without any.
        if (leyendo)
            std::this_thread::sleep_for(kAsentarse);
        sane_cancel(asa_); // also what ends a picture that has come whole
        sane_close(asa_);
    }
    Aparato(const Aparato&) = delete;
    Aparato& operator=(const Aparato&) = delete;

    SANE_Handle asa() const { return asa_; }

    bool leyendo = false; ///< a picture has been begun and has not come whole

private:
    SANE_Handle asa_ = nullptr;
};

void AvisarAvance(const CuadroEscaneado& cuadro, const SeguimientoEscaneo& seguimiento)
{
    const double total = static_cast<double>(cuadro.medidas.lines) * cuadro.medidas.bytes_per_line;
    seguimiento.avance(total > 0 ? std::min(1.0, static_cast<double>(cuadro.datos.size()) / total) : -1);
}

// False when it has been cancelled.
bool LeerCuadro(SANE_Handle asa, CuadroEscaneado& cuadro, const SeguimientoEscaneo& seguimiento)
{
    QByteArray trozo(kTrozo, Qt::Uninitialized);
    while (!seguimiento.cancelado) {
        SANE_Int leidos = 0;
        const SANE_Status estado = sane_read(asa, reinterpret_cast<SANE_Byte*>(trozo.data()),
                                             static_cast<SANE_Int>(trozo.size()), &leidos);
        if (estado == SANE_STATUS_EOF)
            return true;
        Exigir(estado);
        if (leidos == 0) {
            std::this_thread::sleep_for(kPausa);
            continue;
        }
        if (cuadro.datos.size() + leidos > kMayor)
            throw ErrorEscaner(TextoDe(SANE_STATUS_NO_MEM));
        cuadro.datos.append(trozo.constData(), leidos);
        AvisarAvance(cuadro, seguimiento);
    }
    return false;
}

} // namespace

SesionSane::SesionSane()
    : turno_(Turno())
{
    SANE_Int version = 0;
    Exigir(sane_init(&version, nullptr));
}

SesionSane::~SesionSane()
{
    sane_exit();
}

std::vector<Escaner> SesionSane::Buscar()
{
    const SANE_Device** lista = nullptr;
    Exigir(sane_get_devices(&lista, SANE_FALSE));
    std::vector<Escaner> escaneres;
    for (; lista && *lista; ++lista) {
        const SANE_Device& d = **lista;
        const QString marca = QString::fromLocal8Bit(d.vendor);
        const QString modelo = QString::fromLocal8Bit(d.model);
        escaneres.push_back({QByteArray(d.name), (marca + u' ' + modelo).simplified()});
    }
    return escaneres;
}

std::optional<QImage> SesionSane::Digitalizar(const QByteArray& nombre, const SeguimientoEscaneo& seguimiento)
{
    Aparato aparato(nombre);
    PrepararEscaner(aparato.asa());
    std::vector<CuadroEscaneado> cuadros;
    do {
        if (seguimiento.cancelado)
            return std::nullopt;
        aparato.leyendo = true;
        Exigir(sane_start(aparato.asa()));
        // Where it can be had: a reading that returns at once can be cancelled at once.
        sane_set_io_mode(aparato.asa(), SANE_TRUE);
        CuadroEscaneado& cuadro = cuadros.emplace_back();
        Exigir(sane_get_parameters(aparato.asa(), &cuadro.medidas));
        if (!LeerCuadro(aparato.asa(), cuadro, seguimiento))
            return std::nullopt;
        aparato.leyendo = false;
    } while (cuadros.back().medidas.last_frame == SANE_FALSE);
    const QImage imagen = ImagenDeCuadros(cuadros);
    if (imagen.isNull())
        throw ErrorEscaner(TextoDe(SANE_STATUS_EOF));
    return imagen;
}

} // namespace valmerix
