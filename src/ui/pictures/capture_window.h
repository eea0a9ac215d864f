#pragma once

#include "ui/pictures/capture_source.h"

#include <QDialog>
#include <QStringView>

class QComboBox;
class QLabel;
class QProgressBar;
class QPushButton;

namespace valmerix {

/// What the window says; the buttons' captions with their mnemonics.
struct TextosCaptura
{
    QStringView titulo;
    QStringView aparatos; ///< label of the list of devices
    QStringView buscando;
    QStringView ninguno;
    QStringView preparado; ///< where the picture will stand, before there is one
    QStringView capturar;
    QStringView capturando;
};

inline constexpr TextosCaptura kTextosCamara{
    u"Cámara",
    u"C&ámara:",
    u"Buscando cámaras…",
    u"No se ha encontrado ninguna cámara.\nCompruebe que está conectada y que no la usa otro programa.",
    u"Esperando la imagen de la cámara…",
    u"Ca&pturar",
    u"Capturando la imagen…",
};

inline constexpr TextosCaptura kTextosEscaner{
    u"Scanner",
    u"&Escáner:",
    u"Buscando escáneres…",
    u"No se ha encontrado ningún escáner.\nCompruebe que está conectado y encendido.",
    u"Coloque el documento y pulse «Digitalizar».",
    u"&Digitalizar",
    u"Digitalizando…",
};

/// The place of the picture: the picture fitted in it, or a sentence.
class LienzoCaptura : public QWidget
{
    Q_OBJECT

public:
    explicit LienzoCaptura(QWidget* padre);

    void MostrarImagen(const QImage& imagen);
    void MostrarTexto(const QString& texto);
    const QImage& imagen() const { return imagen_; }
    const QString& texto() const { return texto_; }
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    QImage imagen_;
    QString texto_;
};

/// The small window in which a picture is taken: live picture or preview, a button that takes it, one that
/// accepts it, "Cancelar".
class VentanaCaptura : public QDialog
{
    Q_OBJECT

public:
    VentanaCaptura(FuenteCaptura& fuente, const TextosCaptura& textos, QWidget* padre);

    /// The picture taken; null until there is one.
    const QImage& imagen() const { return capturada_; }

    void done(int resultado) override;

protected:
    void showEvent(QShowEvent* evento) override;

private:
    void Disponer();
    void Conectar();
    void Buscar();
    void Vaciar();
    void MostrarAparatos(const QStringList& titulos);
    void Preparar();
    void Capturar();
    void MostrarVista(const QImage& imagen);
    void MostrarAvance(double fraccion);
    void Recibir(const QImage& imagen);
    void MostrarFallo(const QString& texto);
    void Ocupar(const QString& texto);
    void Desocupar();

    FuenteCaptura& fuente_;
    const TextosCaptura& textos_;
    QImage capturada_;
    bool buscado_ = false;
    bool capturando_ = false;
    QLabel* etiqueta_;
    QComboBox* aparatos_;
    QPushButton* buscar_;
    LienzoCaptura* lienzo_;
    QProgressBar* avance_;
    QPushButton* capturar_;
    QPushButton* aceptar_;
    QPushButton* cancelar_;
};

} // namespace valmerix
