#pragma once

#include "shell/manual.h"

#include <QTextBrowser>

namespace valmerix {

/// A page of the manual, with its links, its history and its pictures fitted into the width.
class PaginaAyuda : public QTextBrowser
{
    Q_OBJECT

public:
    explicit PaginaAyuda(QWidget* padre);

    void setManual(std::shared_ptr<const Manual> manual);
    /// Shows a page from the section `ancla` on; an unknown page changes nothing.
    void Mostrar(const QString& pagina, const QString& ancla = {});
    /// Name of the page in view; empty before the first.
    QString pagina() const;
    QString ancla() const { return source().fragment(); }
    /// Name of the page that an address of the manual leads to; empty for any other address.
    static QString NombreDe(const QUrl& url);

    /// Selects the next place (or the one before) that says `texto`, blind to case and accents, going round
    /// at the end; false when the page does not say it.
    bool Buscar(const QString& texto, bool haciaAtras);
    /// How often the page says it.
    int Cuenta(const QString& texto) const;

    QVariant loadResource(int tipo, const QUrl& nombre) override;

protected:
    void changeEvent(QEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void doSetSource(const QUrl& url, QTextDocument::ResourceType tipo) override;

private:
    QVariant CargarImagen(const QString& nombre) const;
    int AnchoUtil() const;
    void VestirPagina();
    void Recomponer();

    std::shared_ptr<const Manual> manual_;
    int anchoCompuesto_ = 0;
};

} // namespace valmerix
