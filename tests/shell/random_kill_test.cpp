// Kill -9 at random moments of everything that writes: what stood before stands whole afterwards.

#include "shell/daily_backup.h"
#include "store/backup.h"
#include "support/random_kill.h"
#include "support/running_program.h"

#include <QDir>
#include <SQLiteCpp/SQLiteCpp.h>
#include <atomic>
#include <new>
#include <sys/mman.h>

namespace valmerix {
namespace {

using namespace Qt::StringLiterals;

constexpr int kVeces = 200;
constexpr unsigned kSemilla = 20261121;
constexpr int kLetras = 20'000; // of the notes: enough for the engine to write many pages

std::string Integridad(const QString& ruta)
{
    SQLite::Database base(ruta.toStdString(), SQLite::OPEN_READWRITE);
    return base.execAndGet("PRAGMA integrity_check").getString();
}

class MuerteAlAzar : public testing::Test, protected ProgramaDePrueba
{
protected:
    /// Three stored cases, the third one open and changed.
    void TresCasos()
    {
        Arrancar();
        ConTasador();
        for (int n = 1; n <= 3; ++n) {
            if (n > 1)
                aplicacion->Reiniciar();
            aplicacion->NuevoCaso(0);
            forma().lista(u"cboNombreTasador").Elegir(0);
            Escribir(QString::number(n));
            aplicacion->EjecutarOrden(OrdenPaleta::Guardar);
        }
        dialogos.mensajes.clear();
    }
    /// The same sign in all that a save writes: the case, its pictures, its comparable.
    void Escribir(const QString& signo)
    {
        forma().campo(u"BoxSit").setText(u"Calle "_s + signo);
        forma().campo(u"txtObservaciones").setText(signo + QString(kLetras, u'x'));
        forma().rejilla(u"GridImagen").setRows(1);
        for (int i = 0; i < 20; ++i)
            forma().rejilla(u"GridImagen").AddItem(u"/foto.jpg\t"_s + signo);
    }
    void Guardar()
    {
        dialogos.respuestas = {true};
        aplicacion->EjecutarOrden(OrdenPaleta::Guardar);
    }
    /// Whether a case bears one sign throughout.
    bool Entero(int numero, const QString& signo) const
    {
        const QString n = QString::number(numero);
        const auto caso =
            Leer(u"SELECT Situacion, Observaciones FROM Viviendas WHERE NumeroTasacion = "_s + n);
        const auto fotos = Leer(u"SELECT Nombre FROM ImagenesAsociadas WHERE NumeroTasacion = "_s + n);
        const auto testigo = Leer(u"SELECT Situacion FROM Testigos WHERE Tasacion = -"_s + n);
        bool entero = caso.RecordCount() == 1 && fotos.RecordCount() == 20 && testigo.RecordCount() == 1;
        entero = entero && caso.Texto(u"Situacion") == u"Calle "_s + signo &&
                 caso.Texto(u"Observaciones") == signo + QString(kLetras, u'x') &&
                 testigo.Texto(u"Situacion") == u"Calle "_s + signo;
        for (qint32 i = 1; entero && i <= fotos.RecordCount(); ++i)
            entero = fotos.Texto(u"Nombre", i) == signo;
        return entero;
    }
    std::mt19937 azar{kSemilla};
};

TEST_F(MuerteAlAzar, DuringASaveEveryCaseStaysWholeOldOrNew)
{
    TresCasos();
    const auto dura = Duracion([this] {
        Escribir(u"3"_s);
        Guardar();
    });
    QString ultimo = u"3"_s;
    int muertes = 0;
    int nuevas = 0;
    for (int vez = 0; vez < kVeces; ++vez) {
        const QString signo = u"vez "_s + QString::number(vez);
        Escribir(signo);
        muertes += MatarEnMedio([this] { Guardar(); }, dura, azar) ? 1 : 0;
        ASSERT_EQ(Integridad(ruta()), "ok") << vez;
        ASSERT_TRUE(Entero(5, u"1"_s) && Entero(6, u"2"_s)) << vez;
        const bool nuevo = Entero(7, signo);
        ASSERT_TRUE(nuevo || Entero(7, ultimo)) << vez;
        nuevas += nuevo ? 1 : 0;
        if (nuevo)
            ultimo = signo;
    }
    EXPECT_GT(muertes, kVeces / 4) << "most kills must come in the middle to prove anything";
    EXPECT_GT(nuevas, 0);
    EXPECT_LT(nuevas, kVeces);
}

TEST_F(MuerteAlAzar, DuringABackupNoHalfCopyIsEverTakenForOne)
{
    TresCasos();
    const QString copias = CopiaDiaria::carpeta(ruta());
    QDir(copias).removeRecursively();
    const auto copiar = [this, &copias] { CopiarBaseDatos(ruta(), copias + u"/valmerix-2026-11-21.mdb"_s); };
    const auto dura = Duracion(copiar);
    int muertes = 0;
    int hechas = 0;
    for (int vez = 0; vez < kVeces; ++vez) {
        QFile::remove(copias + u"/valmerix-2026-11-21.mdb"_s);
        muertes += MatarEnMedio(copiar, dura, azar) ? 1 : 0;
        ASSERT_EQ(Integridad(ruta()), "ok") << vez;
        for (const QString& copia : QDir(copias).entryList({u"*.mdb"_s}, QDir::Files)) {
            ASSERT_EQ(Integridad(copias + u'/' + copia), "ok") << vez;
            ++hechas;
        }
    }
    EXPECT_TRUE(Entero(5, u"1"_s) && Entero(6, u"2"_s) && Entero(7, u"3"_s));
    EXPECT_GT(muertes, kVeces / 4);
    EXPECT_LT(hechas, kVeces);
    copiar();
    EXPECT_EQ(Integridad(copias + u"/valmerix-2026-11-21.mdb"_s), "ok")
        << "leftovers do not stand in the way";
}

/// A number that parent and child both see.
class Compartido
{
public:
    Compartido()
        : memoria_(mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS,
                        -1, 0))
        , numero_(new (memoria_) std::atomic<int>(0))
    {
    }
    ~Compartido() { munmap(memoria_, sizeof(std::atomic<int>)); }
    Compartido(const Compartido&) = delete;
    Compartido& operator=(const Compartido&) = delete;
    std::atomic<int>& numero() { return *numero_; }

private:
    void* memoria_;
    std::atomic<int>* numero_;
};

TEST_F(MuerteAlAzar, DuringADraftTheNewestCompleteOneIsOffered)
{
    TresCasos();
    Compartido escritas;
    const QJsonObject controles = ControlesEnJson(forma());
    const auto borrador = [&](int n) {
        Borrador uno;
        uno.letra = u"P"_s;
        uno.cuando = reloj.ahora().addMSecs(n);
        uno.controles = controles;
        uno.controles.insert(u"BoxSit"_s, QString::number(n));
        return uno;
    };
    const auto escribir = [&](int cuantas) {
        FakeSistema sistemaPropio;
        GuardaBorradores guarda(dialogos, sistemaPropio);
        int n = escritas.numero();
        guarda.Empezar(
            borradores(), [&] { return borrador(n); }, borradores() + u"/borrador-1.json"_s);
        for (int i = 0; i < cuantas; ++i) {
            ++n;
            guarda.Apuntar();
            guarda.Volcar();
            escritas.numero() = n;
        }
    };
    const auto dura = Duracion([&] { escribir(3); });
    int muertes = 0;
    for (int vez = 0; vez < kVeces; ++vez) {
        muertes += MatarEnMedio([&] { escribir(3); }, dura, azar) ? 1 : 0;
        const auto ofrecido = FicheroBorrador::MasReciente(borradores());
        ASSERT_TRUE(ofrecido) << vez;
        const int n = ofrecido->texto(u"BoxSit").toInt();
        // The one that was under way may have been finished too.
        ASSERT_GE(n, escritas.numero()) << vez;
        ASSERT_LE(n, escritas.numero() + 1) << vez;
        ASSERT_EQ(ofrecido->controles, borrador(n).controles) << vez;
        escritas.numero() = n;
    }
    EXPECT_GT(muertes, kVeces / 4);
    EXPECT_EQ(Integridad(ruta()), "ok");
    EXPECT_TRUE(Entero(5, u"1"_s) && Entero(6, u"2"_s) && Entero(7, u"3"_s));
    EXPECT_EQ(EnDisco().size(), 1);
}

} // namespace
} // namespace valmerix
