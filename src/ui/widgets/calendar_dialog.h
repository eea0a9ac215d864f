#pragma once

#include <QDate>
#include <QDialog>

class QCalendarWidget;

namespace valmerix {

/// A month to choose a day from; double click or Return on a day takes it.
class DialogoCalendario : public QDialog
{
    Q_OBJECT

public:
    DialogoCalendario(QDate fecha, QWidget* padre);

    QDate fecha() const;

private:
    QCalendarWidget* calendario_;
};

} // namespace valmerix
