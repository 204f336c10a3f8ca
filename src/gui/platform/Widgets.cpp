#include "Widgets.h"

#include "Twips.h"
#include "platform/Messages.h"
#include "platform/Paths.h"

#include <QComboBox>
#include <QImageReader>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMainWindow>
#include <QScreen>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QWindow>

namespace quillet {

void centreOnScreen(QWidget* window)
{
    const QScreen* screen = window->screen();
    if (!screen)
        return;
    QRect frame(QPoint(), window->sizeHint().expandedTo(window->minimumSize()));
    frame.moveCenter(screen->availableGeometry().center());
    window->move(frame.topLeft());
}

void fitOnScreen(QMainWindow* window)
{
    const QScreen* screen = window->screen();
    if (!screen)
        return;
    const QRect available = screen->availableGeometry();
    // Before the window is first mapped its frame is unknown; allow for a title bar and borders.
    QMargins frame = window->windowHandle() ? window->windowHandle()->frameMargins() : QMargins();
    if (frame.isNull())
        frame = QMargins(4, 32, 4, 4);
    const QSize room = available.size().shrunkBy(frame);
    const QSize wanted = window->sizeHint().expandedTo(window->minimumSizeHint());
    if (wanted.width() <= room.width() && wanted.height() <= room.height())
        return;
    if (!qobject_cast<QScrollArea*>(window->centralWidget())) {
        QWidget* client = window->takeCentralWidget();
        auto* scroll = new QScrollArea(window);
        scroll->setObjectName(QStringLiteral("scroller"));
        scroll->setFrameShape(QFrame::NoFrame);
        scroll->setWidget(client);
        window->setCentralWidget(scroll);
    }
    // The window's minimum size still holds the whole form until its layout is worked out again.
    window->layout()->activate();
    window->resize(wanted.boundedTo(room));
    window->move(available.topLeft()); // a window's position is its frame's
}

void showState(QLabel* label, const LabelState& state)
{
    label->setText(toQString(state.text));
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, toQColor(state.foreColor));
    label->setPalette(palette);
    label->setToolTip(toQString(state.tooltip));
    label->setVisible(state.visible);
}

void showState(QLineEdit* edit, const TextBoxState& state)
{
    // Never rewrite a box under the user's fingers: while they type, the core may already have
    // reformatted the text ("1" into "1.0"); the box shows it once they finish (isModified is
    // cleared then).
    if (!edit->isModified() && edit->text() != toQString(state.text())) {
        const QSignalBlocker blocker(edit);
        edit->setText(toQString(state.text()));
        edit->setCursorPosition(0);
    }
    edit->setToolTip(toQString(state.tooltip));
    edit->setVisible(state.visible);
}

void showState(QComboBox* combo, const ComboState& state)
{
    const QSignalBlocker blocker(combo);
    QStringList items;
    for (const std::string& item : state.items())
        items << toQString(item);
    bool same = combo->count() == items.size();
    for (int i = 0; same && i < items.size(); ++i)
        same = combo->itemText(i) == items[i];
    if (!same) {
        combo->clear();
        combo->addItems(items);
    }
    combo->setPlaceholderText(toQString(state.hint));
    combo->setCurrentIndex(state.listIndex());
    combo->setToolTip(toQString(state.tooltip));
}

QPixmap loadPicture(const std::filesystem::path& file, Messages& messages)
{
    if (file.empty())
        return {};
    QImageReader reader(QString::fromStdString(file.string()));
    const QImage image = reader.read();
    if (image.isNull()) {
        messages.reportOnce("The picture " + quotedPath(file) +
                            " could not be shown: " + reader.errorString().toStdString() + ".");
        return {};
    }
    return QPixmap::fromImage(image);
}

} // namespace quillet
