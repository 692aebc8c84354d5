#include "TestVNMessageBox.h"

#include <VNMessageBox.h>

TestVNMessageBox::TestVNMessageBox(QWidget* parent)
    : QDialog(parent, Qt::WindowFlags())
{
    ui.setupUi(this);
    connect(ui.m_btn_def, &QPushButton::clicked, this, &TestVNMessageBox::showDefaultMsg);
    connect(ui.m_btn_noclose, &QPushButton::clicked, this, &TestVNMessageBox::showMsgWithoutClosePossibility);
}

TestVNMessageBox::~TestVNMessageBox() = default;

void TestVNMessageBox::showDefaultMsg()
{
    const QString title = tr("Warning");
    const QString text = QStringLiteral("This is a default message box");
    Varnis::VNMessageBox::warning(this, title, text, QMessageBox::Ok, QMessageBox::NoButton);
}

void TestVNMessageBox::showMsgWithoutClosePossibility()
{
    const QString text = QStringLiteral("This message box must not be closeable");
    const QString title = tr("Warning");
    const Qt::WindowFlags flags =
        Qt::FramelessWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    Varnis::VNMessageBox box(QMessageBox::Warning, title, text, QMessageBox::Ok, this, flags);
    box.setTitleCloseButtonVisible(false);
    box.exec();
}
