#pragma once

#include "vnwidgets_export.h"

#include <QDialog>
#include <QMessageBox>

class QAbstractButton;
class QDialogButtonBox;
class QLabel;
class QToolButton;

namespace Varnis {

// A modal message box in the toolkit's look. It draws its own title bar; the bar's close button
// can be removed, and then the box can be left only through one of its own buttons.
class VNWIDGETS_EXPORT VNMessageBox : public QDialog
{
    Q_OBJECT

public:
    VNMessageBox(QMessageBox::Icon icon, const QString& title, const QString& text,
                 QMessageBox::StandardButtons buttons = QMessageBox::NoButton, QWidget* parent = nullptr,
                 Qt::WindowFlags flags = Qt::Dialog);
    ~VNMessageBox() override;

    QMessageBox::Icon icon() const { return m_icon; }
    QString text() const;

    void setTitleCloseButtonVisible(bool visible);
    bool isTitleCloseButtonVisible() const { return m_titleCloseVisible; }

    void setDefaultButton(QMessageBox::StandardButton button);
    QAbstractButton* button(QMessageBox::StandardButton which) const;
    QMessageBox::StandardButtons standardButtons() const;
    // The button that Escape and the title bar's close button act as; NoButton when there is none.
    QMessageBox::StandardButton escapeButton() const;

    int exec() override;

    static QMessageBox::StandardButton warning(QWidget* parent, const QString& title, const QString& text,
                                               QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                                               QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);
    static QMessageBox::StandardButton information(QWidget* parent, const QString& title, const QString& text,
                                                   QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                                                   QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);
    static QMessageBox::StandardButton question(QWidget* parent, const QString& title, const QString& text,
                                                QMessageBox::StandardButtons buttons = QMessageBox::Yes |
                                                                                       QMessageBox::No,
                                                QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);
    static QMessageBox::StandardButton critical(QWidget* parent, const QString& title, const QString& text,
                                                QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                                                QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);

    static QString iconResource(QMessageBox::Icon icon);

public slots:
    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    static QMessageBox::StandardButton showBox(QMessageBox::Icon icon, QWidget* parent, const QString& title,
                                               const QString& text, QMessageBox::StandardButtons buttons,
                                               QMessageBox::StandardButton defaultButton);
    QWidget* createTitleBar(const QString& title);
    void onButtonClicked(QAbstractButton* button);

    QMessageBox::Icon m_icon;
    QLabel* m_textLabel = nullptr;
    QToolButton* m_titleCloseButton = nullptr;
    QDialogButtonBox* m_buttonBox = nullptr;
    bool m_titleCloseVisible = true;
    QPoint m_dragOffset;
};

} // namespace Varnis
