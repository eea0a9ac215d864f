#include "ui/pdf_tools.h"
#include "ui/picture_files.h"
#include "ui/pictures/picture_reading.h"
#include "ui/printing/pdf_file.h"
#include "ui/printing/report_pages.h"

#include <gtest/gtest.h>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kCaja(600, 400);

class PhotoPages : public testing::Test
{
protected:
    CarpetaDeImagenes carpeta;

    QString Guardar(const QString& nombre, const QImage& imagen, const char* formato)
    {
        return carpeta.Guardar(nombre, imagen, formato);
    }
    QString Escribir(const QString& nombre, const QByteArray& datos)
    {
        return carpeta.Escribir(nombre, datos);
    }
    static QByteArray Leer(const QString& ruta) { return CarpetaDeImagenes::Leer(ruta); }
    PaginasInforme ConFotos(const std::vector<FotografiaImpresa>& fotos)
    {
        DocumentoImpreso documento;
        documento.lineas = {{u"texto"_s, false}};
        documento.fotografias = fotos;
        return PaginasInforme(documento);
    }
};

} // namespace

TEST_F(PhotoPages, LargePicturesAreReadAtTheSizeAskedFor)
{
    const QString ruta = Guardar(u"grande.jpg"_s, Mitades({4000, 3000}), "JPEG");
    EXPECT_EQ(LeerImagen(ruta, kCaja).size(), QSize(533, 400));
}

TEST_F(PhotoPages, SmallPicturesKeepTheirPixels)
{
    EXPECT_EQ(LeerImagen(Guardar(u"p.png"_s, Mitades({60, 40}), "PNG"), kCaja).size(), QSize(60, 40));
}

TEST_F(PhotoPages, ACameraHeldUprightGivesAnUprightPicture)
{
    const QByteArray jpeg = Leer(Guardar(u"tumbada.jpg"_s, Mitades({1200, 900}), "JPEG"));
    const QImage derecha = LeerImagen(Escribir(u"derecha.jpg"_s, ConGiro(jpeg)), kCaja);
    ASSERT_EQ(derecha.size(), QSize(300, 400));
    EXPECT_GT(qBlue(derecha.pixel(150, 50)), 200) << "the left half is on top";
    EXPECT_GT(qRed(derecha.pixel(150, 350)), 200);
}

TEST_F(PhotoPages, TheFormatIsToldByTheContent)
{
    EXPECT_FALSE(LeerImagen(Guardar(u"mentira.jpg"_s, Mitades({80, 60}), "PNG"), kCaja).isNull());
    EXPECT_FALSE(LeerImagen(Guardar(u"sin_nombre"_s, Mitades({80, 60}), "BMP"), kCaja).isNull());
}

TEST_F(PhotoPages, ExtremeShapesKeepAPixel)
{
    EXPECT_EQ(LeerImagen(Guardar(u"raya.png"_s, Mitades({30000, 2}), "PNG"), kCaja).size(), QSize(600, 1));
    EXPECT_EQ(LeerImagen(Guardar(u"palo.png"_s, Mitades({2, 30000}), "PNG"), kCaja).size(), QSize(1, 400));
    EXPECT_EQ(LeerImagen(Guardar(u"punto.png"_s, Mitades({1, 1}), "PNG"), kCaja).size(), QSize(1, 1));
}

TEST_F(PhotoPages, WhatIsTransparentIsWhiteOnPaper)
{
    QImage nada(50, 50, QImage::Format_ARGB32);
    nada.fill(Qt::transparent);
    EXPECT_EQ(LeerImagen(Guardar(u"nada.png"_s, nada, "PNG"), kCaja).pixel(5, 5), qRgb(255, 255, 255));
}

TEST_F(PhotoPages, FilesThatAreNoPicturesAreNull)
{
    EXPECT_TRUE(LeerImagen(Escribir(u"vacio.jpg"_s, {}), kCaja).isNull());
    EXPECT_TRUE(LeerImagen(Escribir(u"texto.jpg"_s, "esto no es una foto"), kCaja).isNull());
    EXPECT_TRUE(LeerImagen(carpeta.ruta(u"no_hay.jpg"_s), kCaja).isNull());
    EXPECT_TRUE(LeerImagen(carpeta.ruta({}), kCaja).isNull());
    EXPECT_TRUE(LeerImagen({}, kCaja).isNull());
}

TEST_F(PhotoPages, TruncatedFilesDoNoHarm)
{
    const QByteArray jpeg = Leer(Guardar(u"entera.jpg"_s, Mitades({1200, 900}), "JPEG"));
    const QByteArray png = Leer(Guardar(u"entera.png"_s, Mitades({1200, 900}), "PNG"));
    std::vector<FotografiaImpresa> fotos;
    for (const qsizetype corte : {2, 20, 200, 2000}) {
        fotos.push_back({Escribir(u"%1.jpg"_s.arg(corte), jpeg.left(corte)), u"jpg"_s});
        fotos.push_back({Escribir(u"%1.png"_s.arg(corte), png.left(corte)), u"png"_s});
    }
    PaginasInforme paginas = ConFotos(fotos);
    const QString pdf = carpeta.ruta(u"salida.pdf"_s);
    EXPECT_EQ(GuardarPdf(paginas, pdf).fin, FinPdf::Guardado);
    EXPECT_EQ(PaginasPdf(pdf), 5);
}

TEST_F(PhotoPages, TwoPhotographsStandOnAPageBehindTheText)
{
    const QString ruta = Guardar(u"foto.jpg"_s, Mitades({1200, 900}), "JPEG");
    PaginasInforme paginas =
        ConFotos({{ruta, u"Fachada principal"_s}, {ruta, u"Salón"_s}, {ruta, u"Cocina"_s}});
    ASSERT_EQ(paginas.paginas(), 3);
    const QString pdf = carpeta.ruta(u"salida.pdf"_s);
    ASSERT_EQ(GuardarPdf(paginas, pdf).fin, FinPdf::Guardado);
    EXPECT_EQ(TextoPdf(pdf, 1), u"texto Página 1 de 3"_s);
    EXPECT_EQ(TextoPdf(pdf, 2), u"Fachada principal Salón Página 2 de 3"_s);
    EXPECT_EQ(TextoPdf(pdf, 3), u"Cocina Página 3 de 3"_s);
    const QString imagenes = QString::fromUtf8(Poppler(u"pdfimages"_s, {u"-list"_s, pdf}));
    EXPECT_EQ(imagenes.count(u" image "_s), 3) << imagenes.toStdString();
}

TEST_F(PhotoPages, AMissingFileIsAnEmptyFrameWithItsCaption)
{
    PaginasInforme paginas =
        ConFotos({{carpeta.ruta(u"movida.jpg"_s), u"Ya no está"_s}, {{}, u"Sin ruta"_s}});
    ASSERT_EQ(paginas.paginas(), 2);
    const QString pdf = carpeta.ruta(u"salida.pdf"_s);
    ASSERT_EQ(GuardarPdf(paginas, pdf).fin, FinPdf::Guardado);
    EXPECT_EQ(TextoPdf(pdf, 2), u"Ya no está Sin ruta Página 2 de 2"_s);
    EXPECT_TRUE(paginas.preparada(1));
}

TEST_F(PhotoPages, ALongCaptionIsWrappedAndEndsInDots)
{
    PaginasInforme paginas = ConFotos({{{}, u"Detalle de la cornisa "_s.repeated(60)}});
    const QString pdf = carpeta.ruta(u"salida.pdf"_s);
    ASSERT_EQ(GuardarPdf(paginas, pdf).fin, FinPdf::Guardado);
    EXPECT_TRUE(TextoPdf(pdf, 2).contains(u"…"_s));
}

TEST_F(PhotoPages, TheLogoStandsInTheLetterheadAndADamagedOneDoesNot)
{
    DocumentoImpreso documento;
    documento.lineas = {{u"texto"_s, false}};
    documento.membrete = MembreteImpreso{};
    documento.membrete->Logo = Guardar(u"Logo.bmp"_s, Mitades({300, 100}), "BMP");
    documento.membrete->lblNombreEmpresa = u"Tasaciones"_s;
    const QString pdf = carpeta.ruta(u"salida.pdf"_s);
    PaginasInforme con(documento);
    ASSERT_EQ(GuardarPdf(con, pdf).fin, FinPdf::Guardado);
    EXPECT_TRUE(Poppler(u"pdfimages"_s, {u"-list"_s, pdf}).contains(" image "));

    documento.membrete->Logo = Escribir(u"roto.bmp"_s, "BM");
    PaginasInforme sin(documento);
    ASSERT_EQ(GuardarPdf(sin, pdf).fin, FinPdf::Guardado);
    EXPECT_FALSE(Poppler(u"pdfimages"_s, {u"-list"_s, pdf}).contains(" image "));
    EXPECT_EQ(TextoPdf(pdf, 1), u"Tasaciones texto Página 1 de 1"_s);
}

TEST_F(PhotoPages, OnlyTheLastPhotographsStayInMemory)
{
    const QString ruta = Guardar(u"foto.jpg"_s, Mitades({1600, 1100}), "JPEG");
    PaginasInforme paginas = ConFotos(std::vector<FotografiaImpresa>(120, {ruta, u"foto"_s}));
    for (int i = 0; i < paginas.paginas(); ++i) {
        while (!paginas.preparada(i))
            paginas.Preparar(i);
    }
    EXPECT_FALSE(paginas.preparada(1));
    EXPECT_TRUE(paginas.preparada(paginas.paginas() - 1));
}

} // namespace valmerix
