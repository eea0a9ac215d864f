#include "windows_fixture.h"

#include <QRadioButton>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

class OptionsView : public Windows
{
protected:
    /// On the circle: what stands beyond the words is no part of it.
    void ElegirCon(QWidget& vista, const QString& nombre)
    {
        QTest::mouseClick(&Boton_(vista, nombre), Qt::LeftButton, {},
                          QPoint(8, Boton_(vista, nombre).height() / 2));
    }
};

TEST_F(OptionsView, TheSourceOfTheLogoIsOneOfThree)
{
    EnElModal([&] {
        VistaVentana& vista = *VistaModal();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&vista));
        const auto elegidas = [&] {
            QStringList nombres;
            for (const auto* opcion : vista.findChildren<QRadioButton*>()) {
                if (opcion->objectName().startsWith(u"opt") && opcion->isChecked())
                    nombres << opcion->objectName() + u' ' + opcion->text();
            }
            return nombres;
        };
        EXPECT_EQ(elegidas(), QStringList{u"optFile Fichero"_s});
        ElegirCon(vista, u"optScanner"_s);
        EXPECT_EQ(elegidas(), QStringList{u"optScanner Scanner"_s});
        ElegirCon(vista, u"optScanner"_s);
        EXPECT_EQ(elegidas(), QStringList{u"optScanner Scanner"_s}) << "a second click does not clear it";
        Boton_(vista, u"optScanner"_s).setFocus();
        QTest::keyClick(&Boton_(vista, u"optScanner"_s), Qt::Key_Up);
        EXPECT_EQ(elegidas(), QStringList{u"optCamera Cámara"_s});
        Pulsar(vista, u"cmdLogo"_s);
        vista.close();
    });
    aplicacion.MostrarOpciones();
    EXPECT_EQ(captura.fuentes, std::vector<FuenteImagen>{FuenteImagen::Camara});
}

} // namespace

} // namespace valmerix
