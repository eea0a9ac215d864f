#include "photos.h"
#include "support/fake_ports.h"
#include "support/fake_screen.h"
#include "support/manual_sample.h"

#include "shell/application.h"
#include "shell/start_window.h"
#include "ui/desktop.h"
#include "ui/help/help_find_bar.h"
#include "ui/help/help_page.h"
#include "ui/help/help_port.h"
#include "ui/help/help_window.h"
#include "ui/look/application.h"
#include "ui/look/theme.h"
#include "valuation/case_form.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextFragment>
#include <QToolButton>
#include <QToolTip>
#include <QTreeWidget>
#include <gtest/gtest.h>

namespace valmerix {
namespace {

using namespace Qt::StringLiterals;

class HelpWindow : public testing::Test
{
protected:
    HelpWindow()
    {
        ventana.Abrir(manual, {});
        ventana.show();
        ventana.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&ventana));
    }
    QWidget* ConFoco() const { return QApplication::focusWidget(); }
    void Tecla(Qt::Key tecla, Qt::KeyboardModifiers con = Qt::NoModifier)
    {
        QTest::keyClick(ConFoco(), tecla, con);
    }
    QString Texto() const { return ventana.pagina()->toPlainText(); }
    QStringList Enlaces() const
    {
        QStringList enlaces;
        for (QTextBlock b = ventana.pagina()->document()->begin(); b.isValid(); b = b.next()) {
            for (auto i = b.begin(); !i.atEnd(); ++i) {
                if (i.fragment().charFormat().isAnchor() && !i.fragment().charFormat().anchorHref().isEmpty())
                    enlaces << i.fragment().charFormat().anchorHref();
            }
        }
        return enlaces;
    }

    std::shared_ptr<const Manual> manual = std::make_shared<const Manual>(ManualDePrueba());
    VentanaAyuda ventana;
};

TEST_F(HelpWindow, OpensOnTheFirstPageWithItsContents)
{
    EXPECT_TRUE(Texto().startsWith(u"Primeros pasos"_s));
    ASSERT_EQ(ventana.contenido()->topLevelItemCount(), 2);
    EXPECT_EQ(ventana.contenido()->topLevelItem(0)->text(0), u"Primeros pasos"_s);
    EXPECT_EQ(ventana.contenido()->topLevelItem(1)->child(0)->text(0), u"Anexos"_s);
    EXPECT_EQ(ConFoco(), ventana.contenido());
}

TEST_F(HelpWindow, ArrowsInTheContentsTurnThePages)
{
    Tecla(Qt::Key_Down);
    EXPECT_TRUE(Texto().startsWith(u"El cálculo"_s));
    Tecla(Qt::Key_Down);
    EXPECT_EQ(ventana.pagina()->ancla(), u"anexos"_s);
    EXPECT_EQ(ventana.contenido()->currentItem()->text(0), u"Anexos"_s);
}

TEST_F(HelpWindow, GoesBackAndForthWithTheKeys)
{
    Tecla(Qt::Key_Down);
    Tecla(Qt::Key_Left, Qt::AltModifier);
    EXPECT_TRUE(Texto().startsWith(u"Primeros pasos"_s));
    EXPECT_EQ(ventana.contenido()->currentItem()->text(0), u"Primeros pasos"_s) << "the contents follow";
    Tecla(Qt::Key_Right, Qt::AltModifier);
    EXPECT_TRUE(Texto().startsWith(u"El cálculo"_s));
    Tecla(Qt::Key_Home, Qt::AltModifier);
    EXPECT_TRUE(Texto().startsWith(u"Primeros pasos"_s));
}

TEST_F(HelpWindow, ALinkIsFollowedWithTabAndReturn)
{
    ventana.pagina()->setFocus();
    Tecla(Qt::Key_Tab);
    Tecla(Qt::Key_Return);
    EXPECT_EQ(ventana.pagina()->pagina(), u"02-calculo"_s);
    EXPECT_EQ(ventana.pagina()->ancla(), u"anexos"_s);
    EXPECT_EQ(ventana.contenido()->currentItem()->text(0), u"Anexos"_s);
}

TEST_F(HelpWindow, SearchingTheManualListsPlacesAndReturnOpensTheFirst)
{
    Tecla(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_EQ(ConFoco(), ventana.busqueda());
    QTest::keyClicks(ConFoco(), u"TRASTERO"_s);
    ASSERT_EQ(ventana.hallazgos()->count(), 1);
    EXPECT_TRUE(ventana.hallazgos()->isVisible());
    EXPECT_FALSE(ventana.contenido()->isVisible());
    EXPECT_TRUE(ventana.hallazgos()->item(0)->text().startsWith(u"El cálculo › Anexos\n"_s));
    Tecla(Qt::Key_Return);
    EXPECT_EQ(ventana.pagina()->pagina(), u"02-calculo"_s);
    EXPECT_EQ(ventana.pagina()->textCursor().selectedText(), u"trastero"_s);
    Tecla(Qt::Key_Escape);
    EXPECT_TRUE(ventana.contenido()->isVisible());
    EXPECT_EQ(ventana.busqueda()->text(), QString());
    EXPECT_TRUE(ventana.isVisible());
}

TEST_F(HelpWindow, ResultsAreWalkedWithTheArrows)
{
    ventana.busqueda()->setFocus();
    QTest::keyClicks(ConFoco(), u"tasacion"_s);
    ASSERT_EQ(ventana.hallazgos()->count(), 2);
    Tecla(Qt::Key_Down);
    EXPECT_EQ(ConFoco(), ventana.hallazgos());
    Fotografiar(ventana, u"Ayuda-busqueda"_s);
    Tecla(Qt::Key_Down);
    EXPECT_EQ(ventana.pagina()->pagina(), u"02-calculo"_s);
    EXPECT_EQ(ConFoco(), ventana.hallazgos());
}

TEST_F(HelpWindow, WhatIsNowhereIsSaid)
{
    ventana.busqueda()->setFocus();
    QTest::keyClicks(ConFoco(), u"zzz"_s);
    EXPECT_EQ(ventana.hallazgos()->count(), 0);
    const auto rotulos = ventana.findChildren<QLabel*>();
    EXPECT_TRUE(std::any_of(rotulos.begin(), rotulos.end(), [](const QLabel* r) {
        return r->isVisible() && r->text() == u"Nada en el manual lo dice así";
    }));
    Tecla(Qt::Key_Return);
    EXPECT_TRUE(Texto().startsWith(u"Primeros pasos"_s));
}

TEST_F(HelpWindow, FindInThePageGoesRoundBothWays)
{
    ventana.pagina()->Mostrar(u"02-calculo"_s);
    Tecla(Qt::Key_F, Qt::ControlModifier);
    ASSERT_EQ(ConFoco(), ventana.enPagina()->texto());
    QTest::keyClicks(ConFoco(), u"ÁÑO"_s);
    Tecla(Qt::Key_Return);
    const int primero = ventana.pagina()->textCursor().selectionStart();
    EXPECT_EQ(ventana.pagina()->textCursor().selectedText(), u"Año"_s);
    Tecla(Qt::Key_F3);
    const int segundo = ventana.pagina()->textCursor().selectionStart();
    EXPECT_GT(segundo, primero);
    Tecla(Qt::Key_F3);
    EXPECT_EQ(ventana.pagina()->textCursor().selectionStart(), primero);
    Tecla(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(ventana.pagina()->textCursor().selectionStart(), segundo);
}

TEST_F(HelpWindow, EscapeLeavesTheSearchFirstAndThenTheWindow)
{
    Tecla(Qt::Key_F, Qt::ControlModifier);
    Tecla(Qt::Key_Escape);
    EXPECT_FALSE(ventana.enPagina()->isVisible());
    EXPECT_TRUE(ventana.isVisible());
    Tecla(Qt::Key_Escape);
    EXPECT_FALSE(ventana.isVisible());
}

TEST_F(HelpWindow, EverythingThatTakesTheFocusHasAName)
{
    Tecla(Qt::Key_F, Qt::ControlModifier);
    for (const QWidget* w : ventana.findChildren<QWidget*>()) {
        if (w->focusPolicy() == Qt::NoFocus || !w->isVisible() || w->objectName().startsWith(u"qt_"))
            continue;
        EXPECT_FALSE(w->accessibleName().isEmpty()) << w->metaObject()->className();
    }
}

TEST_F(HelpWindow, NothingOutsideTheManualIsRead)
{
    for (const auto& fuera : {u"file:///etc/passwd"_s, u"https://example.org/a.html"_s, u"99-nada.html"_s}) {
        ventana.pagina()->setSource(QUrl(fuera));
        EXPECT_TRUE(Texto().startsWith(u"Primeros pasos"_s)) << fuera.toStdString();
    }
    EXPECT_FALSE(ventana.pagina()
                     ->loadResource(QTextDocument::ImageResource, QUrl(u"file:///etc/passwd"_s))
                     .isValid());
}

TEST_F(HelpWindow, ADarkPaletteIsFollowedInThePage)
{
    QPalette oscura;
    oscura.setColor(QPalette::Base, Qt::black);
    oscura.setColor(QPalette::Text, Qt::white);
    oscura.setColor(QPalette::Link, QColor(u"#8ab4f8"_s));
    ventana.pagina()->setPalette(oscura);
    EXPECT_TRUE(ventana.pagina()->document()->defaultStyleSheet().contains(u"#8ab4f8"_s));
    EXPECT_TRUE(Texto().startsWith(u"Primeros pasos"_s));
}

TEST(ManualOfTheProgram, IsWholeAndItsPagesShow)
{
    const auto manual = LeerManual(QStringLiteral(VALMERIX_MANUAL));
    EXPECT_GE(manual->paginas().size(), 12u);
    VentanaAyuda ventana;
    ventana.Abrir(manual, {});
    ventana.show();
    for (const PaginaManual& p : manual->paginas()) {
        ventana.pagina()->Mostrar(p.nombre);
        EXPECT_EQ(ventana.pagina()->pagina(), p.nombre);
        EXPECT_TRUE(ventana.pagina()->toPlainText().startsWith(p.titulo)) << p.titulo.toStdString();
        Fotografiar(ventana, u"Ayuda-"_s + p.nombre);
        // No page needs to be moved sideways, whatever its pictures and tables.
        EXPECT_EQ(ventana.pagina()->horizontalScrollBar()->maximum(), 0) << p.titulo.toStdString();
    }
    for (const auto& buscado : {u"depreciacion"_s, u"membrete"_s, u"copiar"_s, u"contador"_s,
                                u"fotografias"_s, u"pdf"_s, u"trastero"_s, u"camara"_s, u"recuperar"_s})
        EXPECT_FALSE(manual->Buscar(buscado).empty()) << buscado.toStdString();
}

TEST(ManualOfTheProgram, TellsOfEveryWindow)
{
    const auto manual = LeerManual(QStringLiteral(VALMERIX_MANUAL));
    for (const auto ventana :
         {u"Form1", u"Piso", u"Apto", u"Casa", u"Form2", u"Reinicio", u"SALIDA", u"Visor", u"Ficha",
          u"Opciones", u"Observaciones", u"Problema", u"Busqueda", u"frmVisor"}) {
        const QString nombre = QString::fromUtf16(ventana);
        const auto cuantas =
            std::count_if(manual->paginas().begin(), manual->paginas().end(),
                          [&](const PaginaManual& p) { return p.ventanas.contains(nombre); });
        EXPECT_EQ(cuantas, 1) << nombre.toStdString();
    }
}

/// F1 on the real windows of the program.
class HelpKey : public testing::Test
{
protected:
    HelpKey()
    {
        sistema.carpeta = carpeta.path();
        EscribirManual(carpeta.filePath(u"Valmerix.chm"_s), ManualDePrueba());
        auto* qt = qobject_cast<AplicacionQt*>(QCoreApplication::instance());
        qt->setAyuda([this](const QString& ventana) { aplicacion.MostrarAyuda(ventana); });
        aplicacion.Arrancar();
        aplicacion.inicio()->TerminarPortada();
    }
    ~HelpKey() override { qobject_cast<AplicacionQt*>(QCoreApplication::instance())->setAyuda({}); }

    QTemporaryDir carpeta;
    FakeDialogos dialogos;
    FakeReloj reloj;
    FakeSistema sistema;
    FakeCaptura captura;
    FakeImpresion impresion;
    PantallaQt pantalla;
    AyudaQt ayuda;
    Aplicacion aplicacion{{dialogos, reloj, sistema, pantalla, captura, impresion, &ayuda}};
};

TEST_F(HelpKey, OpensThePageOfTheWindowInHand)
{
    VistaVentana* inicio = pantalla.vista(*aplicacion.inicio());
    QTest::keyClick(inicio->focusWidget() ? inicio->focusWidget() : inicio, Qt::Key_F1);
    ASSERT_NE(ayuda.ventana(), nullptr);
    EXPECT_TRUE(ayuda.ventana()->isVisible());
    EXPECT_EQ(ayuda.ventana()->pagina()->pagina(), u"01-inicio"_s);

    aplicacion.NuevoCaso(0);
    Formulario& piso = *aplicacion.FormularioActual();
    piso.Enfocar(u"BoxSit");
    QWidget* situacion = pantalla.vista(piso)->enlazador().de(u"BoxSit");
    QTest::keyClick(situacion, Qt::Key_F1);
    EXPECT_EQ(ayuda.ventana()->pagina()->pagina(), u"02-calculo"_s);
    EXPECT_EQ(piso.conFoco(), &piso.control(u"BoxSit")) << "the field in hand stays so";
}

TEST_F(HelpKey, TheToolbarsButtonShowsThePageLastRead)
{
    aplicacion.NuevoCaso(0);
    VistaVentana* paleta = pantalla.vista(*aplicacion.paleta());
    auto* boton = paleta->findChild<QAbstractButton*>(u"Botonera(8)"_s);
    ASSERT_NE(boton, nullptr);
    EXPECT_TRUE(boton->toolTip().endsWith(u"(F1)"_s)) << boton->toolTip().toStdString();
    QTest::mouseClick(boton, Qt::LeftButton);
    ASSERT_NE(ayuda.ventana(), nullptr);
    EXPECT_EQ(ayuda.ventana()->pagina()->pagina(), u"01-inicio"_s);
    ayuda.ventana()->pagina()->Mostrar(u"02-calculo"_s);
    ayuda.ventana()->close();
    QTest::mouseClick(boton, Qt::LeftButton);
    EXPECT_TRUE(ayuda.ventana()->isVisible());
    EXPECT_EQ(ayuda.ventana()->pagina()->pagina(), u"02-calculo"_s);
}

TEST_F(HelpKey, ToolTipsShowOnTheToolbarThoughItNeverTakesTheFocus)
{
    aplicacion.NuevoCaso(0);
    VistaVentana* paleta = pantalla.vista(*aplicacion.paleta());
    for (const auto& [nombre, texto] :
         {std::pair(u"Botonera(5)"_s, u"Guardar esta tasación (Ctrl+S)"_s),
          std::pair(u"Botonera(4)"_s, u"Abrir: disponible en una próxima versión (Ctrl+O)"_s)}) {
        auto* boton = paleta->findChild<QWidget*>(nombre);
        QTest::mouseMove(boton, boton->rect().center() - QPoint(3, 3));
        QTest::mouseMove(boton, boton->rect().center());
        EXPECT_TRUE(QTest::qWaitFor([&] { return QToolTip::isVisible() && QToolTip::text() == texto; }, 3000))
            << QToolTip::text().toStdString();
    }
    QToolTip::hideText();
}

TEST_F(HelpKey, TheLettersOfTheStartWindowAreItsOwn)
{
    VistaVentana* inicio = pantalla.vista(*aplicacion.inicio());
    QStringList letras;
    for (const QAbstractButton* boton : inicio->findChildren<QAbstractButton*>()) {
        const qsizetype sitio = boton->text().indexOf(u'&');
        if (sitio >= 0 && boton->isVisible())
            letras << boton->text().mid(sitio + 1, 1).toUpper();
    }
    EXPECT_GE(letras.size(), 8);
    EXPECT_EQ(QStringList(letras).removeDuplicates(), 0) << letras.join(u' ').toStdString();
}

} // namespace
} // namespace valmerix
