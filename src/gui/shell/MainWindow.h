#pragma once

#include <QMainWindow>

class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace quillet {

class Application;
class Form1;
class PictureBox;

// The main window: places form1's controls and forwards their events to it.
class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit MainWindow(Application& app);

    void sync();

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildConverter();

    Application& m_app;
    Form1& m_form;
    QComboBox* m_combo1 = nullptr;
    PictureBox* m_picture = nullptr;
    QString m_shownPicture;
    QLabel* m_lblbow = nullptr;
    QLabel* m_lblpax = nullptr;
    QLabel* m_lblmf = nullptr;
    QLabel* m_lbltot = nullptr;
    QLineEdit* m_textkg = nullptr;
    QLineEdit* m_textlb = nullptr;
    QLabel* m_labelkg = nullptr;
    QLabel* m_labellb = nullptr;
};

} // namespace quillet
