#include "ui/widgets/calendar_dialog.h"

#include "ui/look/icons.h"
#include "ui/look/theme.h"

#include <QBoxLayout>
#include <QCalendarWidget>
#include <QPushButton>
#include <QTextCharFormat>
#include <QToolButton>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

struct FlechaDeMes
{
    QStringView boton; // as the calendar itself calls it
    QStringView icono;
};

constexpr FlechaDeMes kFlechas[] = {
    {u"qt_calendar_prevmonth", u"anterior"},
    {u"qt_calendar_nextmonth", u"siguiente"},
};

// The toolkit's own arrows are green, whatever the palette.
void PonerFlechas(const QCalendarWidget& calendario)
{
    for (const FlechaDeMes& flecha : kFlechas) {
        if (auto* boton = calendario.findChild<QToolButton*>(flecha.boton.toString())) {
            boton->setIcon(Icono(flecha.icono.toString(),
                                 calendario.palette().color(QPalette::Active, QPalette::HighlightedText)));
        }
    }
}

} // namespace

DialogoCalendario::DialogoCalendario(QDate fecha, QWidget* padre)
    : QDialog(padre)
    , calendario_(new QCalendarWidget(this))
{
    setWindowTitle(u"Calendario"_s);
    // Only the names of months and days come from here; dates are written by our own procedures.
    calendario_->setLocale(QLocale(QLocale::Spanish, QLocale::Spain));
    calendario_->setFirstDayOfWeek(Qt::Monday);
    calendario_->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calendario_->setSelectedDate(fecha);
    PonerFlechas(*calendario_);
    QTextCharFormat festivo;
    festivo.setForeground(palette().color(QPalette::BrightText));
    calendario_->setWeekdayTextFormat(Qt::Sunday, festivo);
    calendario_->setWeekdayTextFormat(Qt::Saturday, {});

    auto* aceptar = new QPushButton(u"&Aceptar"_s, this);
    auto* cancelar = new QPushButton(u"&Cancelar"_s, this);
    auto* hoy = new QPushButton(u"&Hoy"_s, this);
    aceptar->setDefault(true);
    auto* botones = new QHBoxLayout;
    botones->addWidget(hoy);
    botones->addStretch();
    botones->addWidget(aceptar);
    botones->addWidget(cancelar);
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(medida::kBorde, medida::kBorde, medida::kBorde, medida::kBorde);
    todo->addWidget(calendario_);
    todo->addLayout(botones);

    connect(calendario_, &QCalendarWidget::activated, this, &QDialog::accept);
    connect(aceptar, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
    connect(hoy, &QPushButton::clicked, this, [this] { calendario_->setSelectedDate(QDate::currentDate()); });
    calendario_->setFocus();
}

QDate DialogoCalendario::fecha() const
{
    return calendario_->selectedDate();
}

} // namespace valmerix
