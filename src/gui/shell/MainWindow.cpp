#include "MainWindow.h"

#include "Application.h"
#include "platform/Accessibility.h"
#include "platform/PictureBox.h"
#include "platform/Twips.h"
#include "platform/Widgets.h"
#include "shell/Form1.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QFocusEvent>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>

namespace quillet {

namespace {

QLabel* makeLabel(QWidget* parent, const char* name, double l, double t, double w, double h)
{
    auto* label = new QLabel(parent);
    label->setObjectName(QString::fromLatin1(name));
    place(label, l, t, w, h);
    return label;
}

} // namespace

MainWindow::MainWindow(Application& app) : m_app(app), m_form(app.form1())
{
    setObjectName(QStringLiteral("form1"));
    setWindowTitle(QString::fromLatin1(Form1::kCaption));

    auto* configure = menuBar()->addMenu(QStringLiteral("&Configure"));
    configure->setObjectName(QStringLiteral("mnuconfigure"));
    QAction* aircraft = configure->addAction(QStringLiteral("&Aircraft"));
    aircraft->setObjectName(QStringLiteral("mnuconfigair"));
    connect(aircraft, &QAction::triggered, this,
            [this] { m_app.handle([this] { m_form.mnuconfigair_Click(); }); });
    auto* about = menuBar()->addMenu(QStringLiteral("&About"));
    about->setObjectName(QStringLiteral("mnuabout"));
    QAction* version = about->addAction(QStringLiteral("&Version"));
    version->setObjectName(QStringLiteral("munver"));
    connect(version, &QAction::triggered, this, [this] { m_app.handle([this] { m_form.munver_Click(); }); });
    QAction* copyright = about->addAction(QStringLiteral("&Copyright"));
    copyright->setObjectName(QStringLiteral("mnucopyright"));
    connect(copyright, &QAction::triggered, this,
            [this] { m_app.handle([this] { m_form.mnucopyright_Click(); }); });

    // Ctrl+Q quits as the close button does.
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q), this), &QShortcut::activated, this,
            &QWidget::close);

    auto* client = new QWidget(this);
    client->setFixedSize(twipsRect(0, 0, 8460, 3510).size());
    setCentralWidget(client);

    QLabel* title = makeLabel(client, "Label4", 3240, 360, 4455, 735);
    title->setText(QStringLiteral("Quillet Manager"));
    QFont titleFont(QStringLiteral("Times New Roman"));
    titleFont.setPointSizeF(27.75);
    titleFont.setBold(true);
    title->setFont(titleFont);
    QLabel* selectAircraft = makeLabel(client, "Label3", 240, 1440, 1335, 255);
    selectAircraft->setText(QStringLiteral("Select Aircraft"));

    m_combo1 = new QComboBox(client);
    m_combo1->setObjectName(QStringLiteral("Combo1"));
    place(m_combo1, 480, 1680, 2295, 315);
    m_combo1->installEventFilter(this);
    m_app.bind(m_combo1, m_form.Combo1);
    nameForScreenReaders(m_combo1, selectAircraft);

    auto* adjust = new QPushButton(QStringLiteral("Adjust"), client);
    adjust->setObjectName(QStringLiteral("Command2"));
    place(adjust, 3000, 1680, 615, 255);
    connect(adjust, &QPushButton::clicked, this,
            [this] { m_app.handle([this] { m_form.Command2_Click(); }); });
    nameForScreenReaders(adjust, {}, QStringLiteral("Opens the load form of the selected aircraft"));

    m_picture = new PictureBox(client);
    m_picture->setObjectName(QStringLiteral("PicDHC"));
    place(m_picture, 3960, 1560, 2460, 1755);
    m_picture->hide();

    m_lblbow = makeLabel(client, "lblbow", 480, 2400, 3300, 255);
    m_lblpax = makeLabel(client, "lblpax", 480, 2640, 3300, 255);
    m_lblmf = makeLabel(client, "lblmf", 120, 2880, 3660, 255);
    auto* rule = new QFrame(client);
    rule->setObjectName(QStringLiteral("Line1"));
    rule->setGeometry(twipsToPixels(600), twipsToPixels(3120), twipsToPixels(3600 - 600) + 1, 1);
    rule->setStyleSheet(QStringLiteral("background-color: black;"));
    m_lbltot = makeLabel(client, "lbltot", 480, 3120, 3300, 255);

    buildConverter();
    sync();
}

void MainWindow::buildConverter()
{
    auto* frame = new QGroupBox(QStringLiteral("Converter"), centralWidget());
    frame->setObjectName(QStringLiteral("Converter"));
    place(frame, 6720, 1680, 1575, 1095);
    // The caption sits in the top edge of the frame, so the rows keep their designed places inside.
    frame->setStyleSheet(QStringLiteral("QGroupBox { border: 1px solid palette(mid); margin-top: 6px; }"
                                        "QGroupBox::title { subcontrol-origin: margin; subcontrol-position: "
                                        "top left; left: 6px; padding: 0 2px; }"));

    m_labelkg = makeLabel(frame, "Labelkg", 240, 280, 855, 255);
    m_labellb = makeLabel(frame, "Labellb", 240, 640, 855, 255);
    makeLabel(frame, "Label1", 1080, 280, 375, 255)->setText(QStringLiteral("kg"));
    makeLabel(frame, "Label2", 1080, 640, 375, 255)->setText(QStringLiteral("lb"));

    // The entry boxes lie over the labels of their rows.
    Converter& converter = m_form.converter;
    const auto makeEdit = [&](const char* name, double top, TextBoxState& box) {
        auto* edit = new QLineEdit(frame);
        edit->setObjectName(QString::fromLatin1(name));
        place(edit, 240, top, 855, 285);
        edit->installEventFilter(this);
        m_app.bind(edit, box);
        return edit;
    };
    m_textkg = makeEdit("Textkg", 240, converter.Textkg);
    m_textlb = makeEdit("TextLB", 600, converter.TextLB);
    nameForScreenReaders(m_textkg, QStringLiteral("Kilograms"));
    nameForScreenReaders(m_textlb, QStringLiteral("Pounds"));
    // The labels read as the numbers they show.
    nameForScreenReaders(m_labelkg, {}, QStringLiteral("Kilograms; click to type kilograms"));
    nameForScreenReaders(m_labellb, {}, QStringLiteral("Pounds; click to type pounds"));
    m_labelkg->installEventFilter(this);
    m_labellb->installEventFilter(this);
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event)
{
    Converter& converter = m_form.converter;
    if (event->type() == QEvent::MouseButtonPress) {
        if (watched == m_textkg)
            m_app.handle([&converter] { converter.Textkg_Click(); });
        else if (watched == m_textlb)
            m_app.handle([&converter] { converter.TextLB_Click(); });
        else if (watched == m_labelkg)
            m_app.handle([&converter] { converter.Labelkg_Click(); });
        else if (watched == m_labellb)
            m_app.handle([&converter] { converter.Labellb_Click(); });
    } else if (event->type() == QEvent::FocusOut && watched == m_combo1) {
        // Validation runs when the user moves on to another control of this window, not when another
        // window (a message box, say) takes the focus.
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason ||
            reason == Qt::BacktabFocusReason)
            m_app.handle([this] { m_form.Combo1_Validate(); });
    }
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::sync()
{
    showState(m_combo1, m_form.Combo1);
    m_picture->setVisible(m_form.PicDHC.visible);
    const QString file = QString::fromStdString(m_form.PicDHC.file.string());
    if (file != m_shownPicture) {
        m_shownPicture = file;
        m_picture->setPicture(loadPicture(m_form.PicDHC.file, m_app.session().messages));
    }
    const QString type = toQString(m_form.Combo1.text());
    nameForScreenReaders(m_picture, QStringLiteral("Picture of the ") +
                                        (type.isEmpty() ? QStringLiteral("selected aircraft") : type));
    showState(m_lblbow, m_form.lblbow);
    showState(m_lblpax, m_form.lblpax);
    showState(m_lblmf, m_form.lblmf);
    showState(m_lbltot, m_form.lbltot);

    const Converter& converter = m_form.converter;
    showState(m_textkg, converter.Textkg);
    showState(m_textlb, converter.TextLB);
    showState(m_labelkg, converter.Labelkg);
    showState(m_labellb, converter.Labellb);
    m_textkg->raise();
    m_textlb->raise();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    m_app.handle([this] { m_form.Form_Unload(); });
    event->accept();
}

} // namespace quillet
