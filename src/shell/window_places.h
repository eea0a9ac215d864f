#pragma once

#include <QList>
#include <QMap>
#include <QRect>
#include <QString>
#include <optional>

namespace valmerix {

/// Where each window stood when she left it, kept in one file from one run to the next. Those whose place is
/// told by others are not remembered: the toolbar stands at the edge of its case, a question in the middle of
/// the screen, the task-bar windows nowhere.
class LugaresVentanas
{
public:
    static bool SeRecuerda(const QString& ventana);

    /// A file that is missing or damaged remembers nothing; so does a line of it that is no place.
    void Leer(const QString& fichero);
    /// Writes the file when something has changed since it was read or written; an empty name writes none. A
    /// failure is not told: a window in its first place is no loss.
    void Guardar(const QString& fichero);

    /// `lugar` is where it stands when it is neither maximised nor minimised.
    void Apuntar(const QString& ventana, const QRect& lugar, bool maximizada = false);
    /// Where the window stood, brought wholly onto the screen that shows most of it, the first one when none
    /// does. Nothing for a window that has not been seen yet.
    std::optional<QRect> LugarDe(const QString& ventana, const QList<QRect>& pantallas) const;
    /// Whether she left it maximised, over the place above.
    bool EstabaMaximizada(const QString& ventana) const;

private:
    struct Recuerdo
    {
        QRect lugar;
        bool maximizada = false;
        bool operator==(const Recuerdo&) const = default;
    };
    QMap<QString, Recuerdo> lugares_;
    bool cambiado_ = false;
};

/// The screen that shows most of a place, the first one when none does; nothing without screens.
QRect PantallaDe(const QRect& lugar, const QList<QRect>& pantallas);

/// Brings a place onto one of the screens as told above, smaller if it has to be.
QRect AjustarAPantallas(QRect lugar, const QList<QRect>& pantallas);

/// The place made large enough for `menor`, but no larger than its screen. One that has to grow keeps its
/// centre, as far as the screen's upper left corner lets it; any other stays where it is.
QRect AgrandarEnPantallas(QRect lugar, QSize menor, const QList<QRect>& pantallas);

} // namespace valmerix
