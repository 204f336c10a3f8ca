#include "TargetDialog.h"

#include "platform/Format.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

namespace quillet {

namespace {

constexpr int kDefaultPassengerWeight = 170;
constexpr int kCargoChoice = 0;
constexpr int kZeroFuelChoice = 1;

QString number(double value)
{
    return QString::fromStdString(format0(value));
}

// "1.25 ft forward", "0.40 ft left", "0.00 ft".
QString feet(double value, const char* positive, const char* negative)
{
    const double shown = std::round(value * 100) / 100;
    QString text = QString::number(std::fabs(shown), 'f', 2) + QStringLiteral(" ft");
    if (shown > 0)
        text += QLatin1Char(' ') + QLatin1String(positive);
    else if (shown < 0)
        text += QLatin1Char(' ') + QLatin1String(negative);
    return text;
}

QSpinBox* weightBox(int maximum, int value)
{
    auto* box = new QSpinBox;
    box->setRange(0, maximum);
    box->setValue(std::clamp(value, 0, maximum));
    box->setSuffix(QStringLiteral(" lb"));
    return box;
}

// A row whose label names the field for the keyboard and for screen readers.
void addRow(QFormLayout* form, const QString& label, QWidget* field, const QString& objectName,
            const QString& accessibleName)
{
    auto* caption = new QLabel(label);
    caption->setBuddy(field);
    field->setObjectName(objectName);
    field->setAccessibleName(accessibleName);
    form->addRow(caption, field);
}

} // namespace

TargetDialog::TargetDialog(const LoadState& state, StationGroups groups, QWidget* parent)
    : QDialog(parent), m_state(state), m_groups(std::move(groups)), m_bounds(planBounds(state, m_groups))
{
    setObjectName(QStringLiteral("TargetDialog"));
    setWindowTitle(QStringLiteral("Load to Target"));
    setAccessibleName(windowTitle());

    // Start from the load the aircraft has now.
    int seated = 0;
    double cargo = 0;
    for (const StationGroup& group : m_groups) {
        for (int station : group.stations) {
            if (group.role == StationRole::Passenger && state.stationweight[station] > 0)
                ++seated;
            else if (group.role == StationRole::Cargo)
                cargo += state.stationweight[station];
        }
    }
    const int maxCargo = static_cast<int>(std::floor(std::max(m_bounds.maxCargo, 0.0f)));
    const int zeroFuelCeiling = static_cast<int>(
        std::ceil(std::max({m_bounds.maxZeroFuel, state.maxtakeoff, state.emptyweight + state.loadweight})));

    auto* form = new QFormLayout;
    if (m_bounds.seats > 0) {
        m_passengers = new QSpinBox;
        m_passengers->setRange(0, m_bounds.seats);
        m_passengers->setValue(seated);
        addRow(form, QStringLiteral("&Passengers:"), m_passengers, QStringLiteral("passengers"),
               QStringLiteral("Passengers, 0 to %1").arg(m_bounds.seats));
        m_passengerWeight = weightBox(999, kDefaultPassengerWeight);
        m_passengerWeight->setMinimum(1);
        addRow(form, QStringLiteral("&Weight per passenger:"), m_passengerWeight,
               QStringLiteral("passengerWeight"), QStringLiteral("Weight per passenger in pounds"));
    }

    m_loadBy = new QComboBox;
    m_loadBy->addItem(QStringLiteral("Cargo"));
    m_loadBy->addItem(QStringLiteral("Zero-fuel weight"));
    addRow(form, QStringLiteral("&Plan by:"), m_loadBy, QStringLiteral("loadBy"),
           QStringLiteral("Plan by cargo or by zero-fuel weight"));
    m_cargo = weightBox(maxCargo, static_cast<int>(std::lround(cargo)));
    addRow(form, QStringLiteral("Car&go:"), m_cargo, QStringLiteral("cargo"),
           QStringLiteral("Cargo in pounds, 0 to %1").arg(maxCargo));
    m_zeroFuel =
        weightBox(zeroFuelCeiling, static_cast<int>(std::lround(state.emptyweight + state.loadweight)));
    addRow(form, QStringLiteral("&Zero-fuel weight:"), m_zeroFuel, QStringLiteral("zeroFuelWeight"),
           QStringLiteral("Zero-fuel weight in pounds, at most %1").arg(number(m_bounds.maxZeroFuel)));
    m_zeroFuel->setEnabled(false);

    m_centre = new QDoubleSpinBox;
    m_centre->setDecimals(2);
    m_centre->setSingleStep(0.1);
    const double band = std::floor(m_bounds.bandX * 100) / 100;
    m_centre->setRange(-band, band);
    m_centre->setValue(0);
    m_centre->setSuffix(QStringLiteral(" ft"));
    addRow(form, QStringLiteral("&Centre of gravity:"), m_centre, QStringLiteral("centre"),
           QStringLiteral("Centre of gravity in feet forward of the empty aircraft's, within %1")
               .arg(QString::number(band, 'f', 2)));

    m_preview = new QLabel;
    m_preview->setObjectName(QStringLiteral("preview"));
    m_preview->setAccessibleName(QStringLiteral("Planned result"));
    m_preview->setTextFormat(Qt::PlainText);
    m_preview->setWordWrap(true);
    m_preview->setMinimumWidth(m_preview->fontMetrics().averageCharWidth() * 48);
    m_preview->setTextInteractionFlags(Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse);

    m_buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    m_buttons->setObjectName(QStringLiteral("buttons"));
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_preview);
    layout->addWidget(m_buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    const auto changed = [this] { replan(); };
    if (m_passengers) {
        connect(m_passengers, &QSpinBox::valueChanged, this, changed);
        connect(m_passengerWeight, &QSpinBox::valueChanged, this, changed);
    }
    connect(m_loadBy, &QComboBox::currentIndexChanged, this, [this](int choice) {
        m_cargo->setEnabled(choice == kCargoChoice);
        m_zeroFuel->setEnabled(choice == kZeroFuelChoice);
        replan();
    });
    connect(m_cargo, &QSpinBox::valueChanged, this, changed);
    connect(m_zeroFuel, &QSpinBox::valueChanged, this, changed);
    connect(m_centre, &QDoubleSpinBox::valueChanged, this, changed);
    replan();
}

PlanRequest TargetDialog::request() const
{
    PlanRequest request;
    if (m_passengers) {
        request.passengers = m_passengers->value();
        request.passengerWeight = static_cast<float>(m_passengerWeight->value());
    }
    if (m_loadBy->currentIndex() == kZeroFuelChoice)
        request.zeroFuelWeight = static_cast<float>(m_zeroFuel->value());
    else
        request.cargo = static_cast<float>(m_cargo->value());
    request.targetCgX = m_centre->value();
    return request;
}

void TargetDialog::replan()
{
    Result<Plan> planned = planLoad(m_state, m_groups, request());
    QPushButton* ok = m_buttons->button(QDialogButtonBox::Ok);
    if (!planned) {
        m_plan.reset();
        m_preview->setText(QString::fromStdString(planned.error().message));
        ok->setEnabled(false);
        return;
    }
    m_plan = std::move(planned).value();
    const Plan& plan = *m_plan;
    QStringList lines;
    lines << QStringLiteral("Cargo %1 lb").arg(number(plan.cargo));
    lines << QStringLiteral("Zero-fuel weight %1 lb of at most %2 lb")
                 .arg(number(plan.zeroFuelWeight), number(m_bounds.maxZeroFuel));
    lines << QStringLiteral("Total weight %1 lb with the fuel allowed").arg(number(plan.total));
    lines << QStringLiteral("Centre of gravity %1, %2")
                 .arg(feet(plan.cg.x, "forward", "aft"), feet(plan.cg.y, "right", "left"));
    if (plan.cg.inBalance)
        lines << QStringLiteral("In balance");
    else
        lines << QStringLiteral("Not in balance: no arrangement balances; best centre %1")
                     .arg(feet(plan.cg.x, "forward", "aft"));
    m_preview->setText(lines.join(QLatin1Char('\n')));
    ok->setEnabled(true);
}

} // namespace quillet
