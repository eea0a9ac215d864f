#include "support/store_fixture.h"
#include "support/test_form.h"

#include "store/case_saving.h"

#include <QFile>
#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

/// A flat with a folder of pictures beside it.
struct ImagenesCaso : ::testing::Test
{
    PisoDePrueba piso;
    QTemporaryDir carpeta;

    QString Fichero(const QString& nombre)
    {
        QFile fichero(carpeta.filePath(nombre));
        EXPECT_TRUE(fichero.open(QIODevice::WriteOnly));
        return fichero.fileName();
    }
    Rejilla& imagenes() { return piso.form.rejilla(u"GridImagen"); }
    QString vista() { return piso.form.como<Imagen>(u"Imagen").Picture(); }
    void Pulsar(QStringView boton) { piso.form.boton(boton).Pulsar(); }
    void Escribir(const QString& nombre, const QString& ruta)
    {
        piso.Escribir({{u"txtNombreImagen", nombre}, {u"txtRutaImagen", ruta}});
    }
    void Añadir(const QString& nombre, const QString& ruta)
    {
        Escribir(nombre, ruta);
        Pulsar(u"btnActualizarLista");
    }
    QStringList lista()
    {
        QStringList filas;
        for (int i = 1; i < imagenes().Rows(); ++i)
            filas << imagenes().TextMatrix(i, 1) + u"="_s + imagenes().TextMatrix(i, 0);
        return filas;
    }
    void EsperarCamposVacios()
    {
        EXPECT_EQ(piso.texto(u"txtNombreImagen"), QString());
        EXPECT_EQ(piso.texto(u"txtRutaImagen"), QString());
        EXPECT_EQ(vista(), QString());
    }
    QString NombreDe(const QString& ruta)
    {
        piso.dialogos.ficheros.push_back(ruta);
        Pulsar(u"btnBuscaImagen");
        EXPECT_EQ(piso.texto(u"txtRutaImagen"), ruta);
        return piso.texto(u"txtNombreImagen");
    }
};

} // namespace

TEST_F(ImagenesCaso, TheChoiceOffersThePictureFormatsOfTheSystem)
{
    piso.dialogos.ficheros.push_back(std::nullopt);
    Pulsar(u"btnBuscaImagen");
    EXPECT_EQ(piso.dialogos.filtros,
              QStringList{u"Todos los formatos gráficos (*.bmp;*.gif;*.jpg)|*.bmp;*.gif;*.jpg|Windows Bitmap "
                          u"(*.bmp)|*.bmp|Fichero Gráfico Intercambio Compuserve(*.gif)|*.gif|Ficheros "
                          u"comprimidos JPEG (*.jpg)|*.jpg"_s});
}

TEST_F(ImagenesCaso, AChosenFileIsShownUnderItsName)
{
    const QString ruta = Fichero(u"Fachada añil.2.jpg"_s);
    EXPECT_EQ(NombreDe(ruta), u"Fachada añil.2"_s);
    EXPECT_EQ(vista(), ruta);
    EXPECT_EQ(imagenes().Rows(), 1) << "only the button puts it on the list";
}

TEST_F(ImagenesCaso, TheNameIsThePathWithoutFolderAndWithoutItsLastFourCharacters)
{
    EXPECT_EQ(NombreDe(u"C:\\Fotos\\Peñíscola.bmp"_s), u"Peñíscola"_s);
    EXPECT_EQ(NombreDe(u"/fotos/salón.jpeg"_s), u"salón."_s) << "a dot stays, as it always has";
    EXPECT_EQ(NombreDe(u"salón.gif"_s), u"salón"_s);
    EXPECT_EQ(NombreDe(u"/fotos/.jpg"_s), QString());
    EXPECT_EQ(NombreDe(u".jpg"_s), QString());
}

TEST_F(ImagenesCaso, APathOfLessThanFourCharactersLeavesTheNameAsItWas)
{
    Escribir(u"cocina"_s, u"x"_s);
    EXPECT_EQ(NombreDe(u"a.b"_s), u"cocina"_s);
}

TEST_F(ImagenesCaso, LeavingTheChoiceChangesNothing)
{
    const QString ruta = Fichero(u"cocina.jpg"_s);
    Escribir(u"cocina"_s, ruta);
    piso.dialogos.ficheros.push_back(std::nullopt);
    Pulsar(u"btnBuscaImagen");
    EXPECT_EQ(piso.texto(u"txtNombreImagen"), u"cocina"_s);
    EXPECT_EQ(vista(), ruta);
}

TEST_F(ImagenesCaso, ThePathIsShownWhileItIsTyped)
{
    const QString ruta = Fichero(u"baño.jpg"_s);
    piso.Teclear(u"txtRutaImagen", ruta.chopped(1));
    EXPECT_EQ(vista(), QString());
    piso.Teclear(u"txtRutaImagen", u"g");
    EXPECT_EQ(vista(), ruta);
}

TEST_F(ImagenesCaso, FoldersAndBackslashedEndsShowNothing)
{
    for (const QString& ruta : {carpeta.path(), carpeta.path() + u'/', Fichero(u"foto\\"_s)}) {
        piso.Escribir({{u"txtRutaImagen", ruta}});
        EXPECT_EQ(vista(), QString()) << ruta.toStdString();
    }
}

TEST_F(ImagenesCaso, AMovedFileStaysOnTheListAndShowsNothing)
{
    const QString ruta = Fichero(u"fachada.jpg"_s);
    Añadir(u"fachada"_s, ruta);
    ASSERT_TRUE(QFile::remove(ruta));
    imagenes().Pulsar(1);
    EXPECT_EQ(lista(), QStringList{u"fachada="_s + ruta});
    EXPECT_EQ(piso.texto(u"txtRutaImagen"), ruta);
    EXPECT_EQ(vista(), QString());
}

TEST_F(ImagenesCaso, UpdatingTheListAddsThePictureAndEmptiesTheFields)
{
    Añadir(u"fachada"_s, Fichero(u"1.jpg"_s));
    EsperarCamposVacios();
    Añadir(u"cocina"_s, u"/no/hay.jpg"_s);
    EXPECT_EQ(lista(), (QStringList{u"fachada="_s + carpeta.filePath(u"1.jpg"_s), u"cocina=/no/hay.jpg"_s}));
}

TEST_F(ImagenesCaso, UpdatingANameThatIsListedTwiceOverwritesTheFirst)
{
    for (const QString& ruta : {u"/a.jpg"_s, u"/b.jpg"_s, u"/c.jpg"_s})
        imagenes().AddItem(ruta + (ruta == u"/a.jpg" ? u"\tcocina"_s : u"\tbaño"_s));
    Añadir(u"baño"_s, u"/nueva.jpg"_s);
    EXPECT_EQ(lista(), (QStringList{u"cocina=/a.jpg"_s, u"baño=/nueva.jpg"_s, u"baño=/c.jpg"_s}));
    Añadir(u"Baño"_s, u"/d.jpg"_s);
    EXPECT_EQ(lista().size(), 4) << "capitals make another name";
}

TEST_F(ImagenesCaso, RemovingTakesTheFirstOfTheNameOffTheList)
{
    for (const QString& fila : {u"/a.jpg\tcocina"_s, u"/b.jpg\tbaño"_s, u"/c.jpg\tbaño"_s})
        imagenes().AddItem(fila);
    imagenes().Pulsar(3);
    Pulsar(u"SSCommand8");
    EXPECT_EQ(lista(), (QStringList{u"cocina=/a.jpg"_s, u"baño=/c.jpg"_s}));
    EsperarCamposVacios();
}

TEST_F(ImagenesCaso, RemovingTheOnlyPictureLeavesTheHeader)
{
    Añadir(u"fachada"_s, u"/a.jpg"_s);
    imagenes().Pulsar(1);
    Pulsar(u"SSCommand8");
    EXPECT_EQ(imagenes().Rows(), 1);
    EXPECT_EQ(imagenes().TextMatrix(0, 1), u"Nombre"_s);
    EsperarCamposVacios();
}

TEST_F(ImagenesCaso, RemovingANameThatIsNotListedOnlyEmptiesTheFields)
{
    Añadir(u"fachada"_s, u"/a.jpg"_s);
    Escribir(u"Nombre"_s, u"/b.jpg"_s);
    Pulsar(u"SSCommand8");
    EXPECT_EQ(lista(), QStringList{u"fachada=/a.jpg"_s});
    EXPECT_EQ(imagenes().TextMatrix(0, 1), u"Nombre"_s) << "the header is no picture of that name";
    EsperarCamposVacios();
}

TEST_F(ImagenesCaso, WithoutNameOrPathNothingHappens)
{
    Añadir(u"fachada"_s, u"/a.jpg"_s);
    for (const QStringView boton : {u"btnActualizarLista", u"SSCommand8"}) {
        Escribir(u"fachada"_s, {});
        Pulsar(boton);
        EXPECT_EQ(piso.texto(u"txtNombreImagen"), u"fachada"_s);
        Escribir({}, u"/b.jpg"_s);
        Pulsar(boton);
        EXPECT_EQ(piso.texto(u"txtRutaImagen"), u"/b.jpg"_s);
    }
    EXPECT_EQ(lista(), QStringList{u"fachada=/a.jpg"_s});
}

TEST_F(ImagenesCaso, ThePreviewGoesToTheClipboardAndABoxSaysSo)
{
    const QString ruta = Fichero(u"fachada.jpg"_s);
    Escribir({}, ruta);
    Pulsar(u"SSCommand9");
    EXPECT_EQ(piso.sistema.imagenesCopiadas, QStringList{ruta});
    ASSERT_EQ(piso.dialogos.mensajes.size(), 1U);
    EXPECT_EQ(piso.dialogos.mensajes[0].texto, u"La imagen seleccionada se ha copiado al portapapeles"_s);
    EXPECT_EQ(piso.dialogos.mensajes[0].titulo, u"Aviso"_s);
}

TEST_F(ImagenesCaso, WhatIsShownIsCopiedWhenItsFileHasGoneSince)
{
    auto& imagen = piso.form.como<Imagen>(u"Imagen");
    QObject::connect(&imagen, &Imagen::CopiaPedida, &imagen, [](bool& copiada) { copiada = true; });
    Escribir({}, Fichero(u"fachada.jpg"_s));
    piso.sistema.imagenLegible = false;
    Pulsar(u"SSCommand9");
    ASSERT_EQ(piso.dialogos.mensajes.size(), 1U);
    EXPECT_EQ(piso.dialogos.mensajes[0].texto, u"La imagen seleccionada se ha copiado al portapapeles"_s);
}

TEST_F(ImagenesCaso, ATabulatorInAPathOrNameSplitsNothing)
{
    Añadir(u"vista\tsur"_s, u"/fotos/a\tb.jpg"_s);
    Añadir(u"patio"_s, u"/c.jpg"_s);
    Añadir(u"vista\tsur"_s, u"/fotos/d\te.jpg"_s);
    EXPECT_EQ(lista(), QStringList({u"vista\tsur=/fotos/d\te.jpg"_s, u"patio=/c.jpg"_s}));
    imagenes().Pulsar(1);
    EXPECT_EQ(piso.texto(u"txtRutaImagen"), u"/fotos/d\te.jpg"_s);
}

TEST_F(ImagenesCaso, AnEmptyOrUnreadablePreviewIsNotCopied)
{
    Pulsar(u"SSCommand9");
    Escribir({}, carpeta.filePath(u"no_hay.jpg"_s));
    Pulsar(u"SSCommand9");
    Escribir({}, Fichero(u"rota.jpg"_s));
    piso.sistema.imagenLegible = false;
    Pulsar(u"SSCommand9");
    EXPECT_TRUE(piso.sistema.imagenesCopiadas.isEmpty());
    EXPECT_TRUE(piso.dialogos.mensajes.empty());
}

namespace {

/// A flat on a store, of a valuer who can save it.
struct ImagenesGuardadas : ::testing::Test
{
    AlmacenDePrueba almacen;
    EntornoDePrueba entorno;

    ImagenesGuardadas()
    {
        entorno.compartido = almacen.compartido;
        almacen.AltaDeTasador(u"Ruiz, Berta"_s, 6);
    }
    std::unique_ptr<Formulario> Abrir()
    {
        auto piso = std::make_unique<Formulario>(kDescripcionPiso, entorno.servicios);
        piso->Load();
        piso->lista(u"cboNombreTasador").setText(u"Ruiz, Berta"_s);
        return piso;
    }
    static void Añadir(Formulario& piso, const QString& nombre, const QString& ruta)
    {
        piso.campo(u"txtNombreImagen").setText(nombre);
        piso.campo(u"txtRutaImagen").setText(ruta);
        piso.ActualizarGrid(u"Editar");
    }
    void Guardar(Formulario& piso) { SalvaVivienda(piso, entorno.compartido, entorno.dialogos); }
    QString Guardadas() { return almacen.Dato(u"SELECT COUNT(*) FROM ImagenesAsociadas"_s); }
};

} // namespace

TEST_F(ImagenesGuardadas, ComeBackWithTheCaseInTheirOrder)
{
    const auto piso = Abrir();
    Añadir(*piso, u"fachada"_s, u"/fotos/Peñíscola 1.jpg"_s);
    Añadir(*piso, u"cocina"_s, u"/fotos/2.jpg"_s);
    Guardar(*piso);

    const auto otro = Abrir();
    otro->campo(u"txtNombreImagen").setText(u"a medias"_s);
    otro->campo(u"txtRutaImagen").setText(u"/x.jpg"_s);
    otro->CargaGridImagenesAsociadas();
    const Rejilla& imagenes = otro->rejilla(u"GridImagen");
    ASSERT_EQ(imagenes.Rows(), 3);
    EXPECT_EQ(imagenes.TextMatrix(1, 0), u"/fotos/Peñíscola 1.jpg"_s);
    EXPECT_EQ(imagenes.TextMatrix(1, 1), u"fachada"_s);
    EXPECT_EQ(imagenes.TextMatrix(2, 1), u"cocina"_s);
    EXPECT_EQ(otro->texto(u"txtNombreImagen"), QString());
    EXPECT_EQ(otro->texto(u"txtRutaImagen"), QString());
}

TEST_F(ImagenesGuardadas, APathWithATabulatorComesBackAsItWas)
{
    const auto piso = Abrir();
    Añadir(*piso, u"fachada"_s, u"/fotos/a\tb.jpg"_s);
    Guardar(*piso);
    piso->CargaGridImagenesAsociadas();
    const Rejilla& imagenes = piso->rejilla(u"GridImagen");
    ASSERT_EQ(imagenes.Rows(), 2);
    EXPECT_EQ(imagenes.TextMatrix(1, 0), u"/fotos/a\tb.jpg"_s);
    EXPECT_EQ(imagenes.TextMatrix(1, 1), u"fachada"_s);
}

TEST_F(ImagenesGuardadas, SavingAfterRemovingThemAllForgetsThem)
{
    const auto piso = Abrir();
    Añadir(*piso, u"fachada"_s, u"/a.jpg"_s);
    Guardar(*piso);
    EXPECT_EQ(Guardadas(), u"1"_s);
    piso->rejilla(u"GridImagen").Pulsar(1);
    piso->boton(u"SSCommand8").Pulsar();
    entorno.dialogos.respuestas.push_back(true);
    Guardar(*piso);
    EXPECT_EQ(Guardadas(), u"0"_s);
}

TEST_F(ImagenesGuardadas, APathWithAQuoteBreaksTheSaveAndKeepsTheList)
{
    const auto piso = Abrir();
    Añadir(*piso, u"fachada"_s, u"/fotos/casa d'Elda.jpg"_s);
    EXPECT_NE(Fallo([&] { Guardar(*piso); }), QString());
    EXPECT_EQ(Guardadas(), u"0"_s);
    EXPECT_EQ(piso->rejilla(u"GridImagen").TextMatrix(1, 0), u"/fotos/casa d'Elda.jpg"_s);
}

TEST_F(ImagenesGuardadas, AnotherKindWithTheSameNumberBringsItsPicturesToo)
{
    almacen.Ejecutar(u"INSERT INTO ImagenesAsociadas (NombreTasador, Tipo, NumeroTasacion, Nombre, Ruta) "
                     u"VALUES ('Ruiz, Berta', 'C', 4, 'jardín', '/c.jpg')"_s);
    const auto piso = Abrir();
    entorno.compartido.NumeroTasacionActual = 4;
    piso->CargaGridImagenesAsociadas();
    EXPECT_EQ(piso->rejilla(u"GridImagen").TextMatrix(1, 1), u"jardín"_s);
}

TEST_F(ImagenesGuardadas, ACaseWithoutNumberOrValuerHasNone)
{
    const auto piso = Abrir();
    Añadir(*piso, u"fachada"_s, u"/a.jpg"_s);
    piso->CargaGridImagenesAsociadas();
    EXPECT_EQ(piso->rejilla(u"GridImagen").Rows(), 1);
    entorno.compartido.NumeroTasacionActual = 4;
    piso->lista(u"cboNombreTasador").setText({});
    almacen.sql.clear();
    piso->CargaGridImagenesAsociadas();
    EXPECT_TRUE(almacen.sql.isEmpty());
}

} // namespace valmerix
