#pragma once

#include <QDialog>

#include <functional>

namespace quillet {

// A small window of fixed text with an OK button: the version and the terms of use.
class TextWindow : public QDialog {
    Q_OBJECT
public:
    TextWindow(const QString& caption, const QString& text, QWidget* parent = nullptr);

    // Called when the window is closed, so that the core knows it is no longer shown.
    std::function<void()> onClosed;

protected:
    void done(int result) override;
};

} // namespace quillet
