#include "Widgets.h"

#include "Twips.h"
#include "platform/Messages.h"
#include "platform/Paths.h"

#include <QComboBox>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

namespace quillet {

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
        messages.reportOnce("The picture \"" + displayPath(file) +
                            "\" could not be shown: " + reader.errorString().toStdString() + ".");
        return {};
    }
    return QPixmap::fromImage(image);
}

} // namespace quillet
