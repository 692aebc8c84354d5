#include "TestStringReducer.h"

#include <PathShortener.h>

#include <QFontMetrics>

namespace {
// Room left free inside the field, so the shortened path does not touch its frame.
const int fieldMargin = 10;
} // namespace

TestStringReducer::TestStringReducer(QWidget* parent)
    : QDialog(parent, Qt::WindowFlags())
    , m_adjustOnResize(false)
{
    ui.setupUi(this);
    ui.lineEdit->setText(QStringLiteral("I:\\datablabla\\work\\temporary\\TP_96757_hemming_plan.vnd"));
    ui.m_width->setValue(258);
}

TestStringReducer::~TestStringReducer() = default;

void TestStringReducer::on_pushButton_clicked()
{
    const QFontMetrics metrics(ui.label->font());
    const PathShortener shortener(ui.label->width() - fieldMargin, metrics);
    ui.label->setText(shortener.adjust(ui.lineEdit->text()));
}

void TestStringReducer::on_checkBox_stateChanged(int state)
{
    m_adjustOnResize = state == Qt::Checked;
    if (m_adjustOnResize)
        on_pushButton_clicked();
}

void TestStringReducer::on_m_fixedWidth_stateChanged(int)
{
    if (!ui.m_fixedWidth->isChecked()) {
        ui.label->setMinimumWidth(10);
        ui.label->setMaximumWidth(QWIDGETSIZE_MAX);
        return;
    }
    fixFieldWidth(ui.m_width->value());
}

void TestStringReducer::on_m_width_valueChanged(int value)
{
    if (ui.m_fixedWidth->isChecked())
        fixFieldWidth(value);
}

void TestStringReducer::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    if (m_adjustOnResize)
        on_pushButton_clicked();
}

void TestStringReducer::fixFieldWidth(int width)
{
    ui.label->setFixedWidth(width);
    on_pushButton_clicked();
}
