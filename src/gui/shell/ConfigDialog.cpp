#include "ConfigDialog.h"

#include "Application.h"
#include "platform/Accessibility.h"
#include "platform/Twips.h"
#include "platform/Widgets.h"
#include "shell/Form1.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>
#include <memory>

namespace quillet {

namespace {

enum class LabelFont { Form, Arial };

QLabel* makeLabel(QWidget* parent, const char* name, const char* text, LabelFont font, double l, double t,
                  double w, double h)
{
    auto* label = new QLabel(QString::fromLatin1(text), parent);
    label->setObjectName(QString::fromLatin1(name));
    if (font == LabelFont::Arial) {
        QFont arial(QStringLiteral("Arial"));
        arial.setPointSizeF(9.75);
        label->setFont(arial);
    }
    // Captions stand at the top of their boxes, whatever the boxes' heights.
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    place(label, l, t, w, h);
    return label;
}

} // namespace

ConfigDialog::ConfigDialog(Application& app, QWidget* parent)
    : QDialog(parent), m_app(app), m_form(app.form1().form4Window())
{
    setObjectName(QStringLiteral("Form4"));
    setWindowTitle(QString::fromLatin1(Form4::kCaption));
    setFixedSize(twipsRect(0, 0, 5370, 2415).size());

    QLabel* active = makeLabel(this, "Label1", "Active Aircraft", LabelFont::Arial, 120, 0, 1695, 255);
    makeLabel(this, "Label2", "Directory", LabelFont::Arial, 2640, 0, 1935, 375);
    QLabel* available = makeLabel(this, "Label4", "Avaliable Aircraft", LabelFont::Arial, 0, 720, 1695, 255);
    QLabel* simulator = makeLabel(this, "Label3", "Current Directory of Flight Simulator", LabelFont::Form,
                                  240, 1560, 4095, 255);

    m_combo1 = new QComboBox(this);
    m_combo1->setObjectName(QStringLiteral("Combo1"));
    place(m_combo1, 720, 360, 1935, 315);
    m_app.bind(m_combo1, m_form.Combo1);
    nameForScreenReaders(m_combo1, active);

    m_validDir = new QLineEdit(this);
    m_validDir->setObjectName(QStringLiteral("Valid_dir"));
    m_validDir->setReadOnly(true);
    QPalette menuColour = m_validDir->palette();
    menuColour.setColor(QPalette::Base, palette().color(QPalette::Button));
    m_validDir->setPalette(menuColour);
    place(m_validDir, 2760, 360, 1695, 285);
    nameForScreenReaders(m_validDir, QStringLiteral("Directory of the active aircraft"));

    m_combo2 = new QComboBox(this);
    m_combo2->setObjectName(QStringLiteral("Combo2"));
    place(m_combo2, 720, 1080, 1935, 315);
    m_app.bind(m_combo2, m_form.Combo2);
    nameForScreenReaders(m_combo2, available);
    m_invalidDir = new QLineEdit(this);
    m_invalidDir->setObjectName(QStringLiteral("invalid_dir"));
    place(m_invalidDir, 2760, 1080, 1695, 285);
    m_app.bind(m_invalidDir, m_form.invalid_dir);
    nameForScreenReaders(m_invalidDir, QStringLiteral("Directory of the available aircraft"));

    m_add = new QPushButton(QStringLiteral("Add"), this);
    m_add->setObjectName(QStringLiteral("Command1"));
    m_add->setToolTip(QStringLiteral("Add airfract to active menu"));
    place(m_add, 4560, 1080, 495, 255);
    // Return in a text box must not press "Add", as a dialog's buttons otherwise would.
    m_add->setAutoDefault(false);
    connect(m_add, &QPushButton::clicked, this,
            [this] { m_app.handle([this] { m_form.Command1_Click(); }); });

    m_simdir = new QLineEdit(this);
    m_simdir->setObjectName(QStringLiteral("simdir"));
    place(m_simdir, 360, 1920, 4095, 375);
    m_app.bind(m_simdir, m_form.simdir);
    nameForScreenReaders(m_simdir, simulator);

    m_check2 = new QCheckBox(this);
    m_check2->setObjectName(QStringLiteral("Check2"));
    place(m_check2, 4560, 2040, 135, 195);
    // The designed box is smaller than this style's indicator; grow it from its corner so it shows whole.
    m_check2->resize(m_check2->size().expandedTo(m_check2->sizeHint()));
    nameForScreenReaders(m_check2, QStringLiteral("Simulator directory confirmed"));
    connect(m_check2, &QCheckBox::toggled, this,
            [this](bool checked) { m_app.handle([this, checked] { m_form.Check2 = checked; }); });

    // In the room the design leaves at the right of each folder box; nothing designed moves.
    addFolderPicker(m_invalidDir, QStringLiteral("Choose the aircraft folder"), 5085, 1080, 255, 255,
                    [this] { pickAircraftFolder(); });
    addFolderPicker(m_simdir, QStringLiteral("Choose the simulator folder"), 4935, 1920, 375, 315,
                    [this] { pickSimulatorFolder(); });

    sync();
}

void ConfigDialog::addFolderPicker(QLineEdit* box, const QString& caption, double left, double top,
                                   double width, double height, const std::function<void()>& pick)
{
    auto* button = new QToolButton(this);
    button->setObjectName(box->objectName() + QStringLiteral("_browse"));
    button->setText(QStringLiteral("..."));
    button->setToolTip(caption);
    place(button, left, top, width, height);
    nameForScreenReaders(button, caption);
    connect(button, &QToolButton::clicked, this, pick);

    box->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(box, &QLineEdit::customContextMenuRequested, this, [box, pick](const QPoint& at) {
        std::unique_ptr<QMenu> menu(box->createStandardContextMenu());
        menu->addSeparator();
        QAction* browse = menu->addAction(QStringLiteral("Browse..."));
        if (menu->exec(box->mapToGlobal(at)) == browse)
            pick();
    });
}

void ConfigDialog::pickSimulatorFolder()
{
    const QString chosen =
        m_app.chooseFolder(this, QStringLiteral("Choose the simulator folder"),
                           QString::fromStdU16String(m_form.simulatorPickerStart().u16string()));
    if (chosen.isEmpty())
        return;
    m_app.handle([this, chosen] { m_form.loaded().simulatorFolderChosen(chosen.toStdU16String()); });
}

void ConfigDialog::pickAircraftFolder()
{
    const QString chosen =
        m_app.chooseFolder(this, QStringLiteral("Choose the aircraft folder"),
                           QString::fromStdU16String(m_form.aircraftPickerStart().u16string()));
    if (chosen.isEmpty())
        return;
    m_app.handle([this, chosen] { m_form.loaded().aircraftFolderChosen(chosen.toStdU16String()); });
}

void ConfigDialog::sync()
{
    showState(m_combo1, m_form.Combo1);
    showState(m_validDir, m_form.Valid_dir);
    showState(m_combo2, m_form.Combo2);
    showState(m_invalidDir, m_form.invalid_dir);
    m_add->setVisible(m_form.Command1_visible);
    showState(m_simdir, m_form.simdir);
    const QSignalBlocker blocker(m_check2);
    m_check2->setChecked(m_form.Check2);
}

void ConfigDialog::done(int result)
{
    QDialog::done(result);
    m_app.handle([this] { m_form.close(); });
}

} // namespace quillet
