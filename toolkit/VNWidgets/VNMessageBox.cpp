#include "VNMessageBox.h"

#include "QtCompat.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QStyleOption>
#include <QToolButton>
#include <QVBoxLayout>

namespace Varnis {

namespace {
const int iconExtent = 32;
}

VNMessageBox::VNMessageBox(QMessageBox::Icon icon, const QString& title, const QString& text,
                           QMessageBox::StandardButtons buttons, QWidget* parent, Qt::WindowFlags flags)
    : QDialog(parent, flags | Qt::Dialog | Qt::FramelessWindowHint)
    , m_icon(icon)
{
    setObjectName(QStringLiteral("VNMessageBox"));
    setWindowTitle(title);
    setModal(true);

    auto* iconLabel = new QLabel(this);
    iconLabel->setObjectName(QStringLiteral("iconLabel"));
    const QString iconPath = iconResource(icon);
    if (!iconPath.isEmpty())
        iconLabel->setPixmap(QIcon(iconPath).pixmap(iconExtent, iconExtent));
    iconLabel->setVisible(!iconPath.isEmpty());
    iconLabel->setAlignment(Qt::AlignTop | Qt::AlignHCenter);

    m_textLabel = new QLabel(text, this);
    m_textLabel->setObjectName(QStringLiteral("textLabel"));
    m_textLabel->setWordWrap(true);
    m_textLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_textLabel->setMinimumWidth(260);

    m_buttonBox = new QDialogButtonBox(QDialogButtonBox::StandardButtons(int(buttons)), this);
    m_buttonBox->setObjectName(QStringLiteral("buttonBox"));
    connect(m_buttonBox, &QDialogButtonBox::clicked, this, &VNMessageBox::onButtonClicked);

    auto* body = new QHBoxLayout;
    body->setContentsMargins(16, 12, 16, 4);
    body->setSpacing(12);
    body->addWidget(iconLabel);
    body->addWidget(m_textLabel, 1);

    auto* footer = new QHBoxLayout;
    footer->setContentsMargins(16, 4, 16, 12);
    footer->addWidget(m_buttonBox);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(0);
    layout->addWidget(createTitleBar(title));
    layout->addLayout(body, 1);
    layout->addLayout(footer);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

VNMessageBox::~VNMessageBox() = default;

QWidget* VNMessageBox::createTitleBar(const QString& title)
{
    auto* bar = new QWidget(this);
    bar->setObjectName(QStringLiteral("titleBar"));
    bar->setAttribute(Qt::WA_StyledBackground);
    bar->installEventFilter(this);

    auto* titleLabel = new QLabel(title, bar);
    titleLabel->setObjectName(QStringLiteral("titleLabel"));
    QFont titleFont = titleLabel->font();
    titleFont.setBold(true);
    titleLabel->setFont(titleFont);

    m_titleCloseButton = new QToolButton(bar);
    m_titleCloseButton->setObjectName(QStringLiteral("titleCloseButton"));
    m_titleCloseButton->setIcon(QIcon(QStringLiteral(":/Style/VnWidgets/VNMessageBox/close.svg")));
    m_titleCloseButton->setAutoRaise(true);
    m_titleCloseButton->setFocusPolicy(Qt::NoFocus);
    m_titleCloseButton->setToolTip(tr("Close"));
    connect(m_titleCloseButton, &QToolButton::clicked, this, &VNMessageBox::reject);

    auto* layout = new QHBoxLayout(bar);
    layout->setContentsMargins(10, 4, 4, 4);
    layout->addWidget(titleLabel, 1);
    layout->addWidget(m_titleCloseButton);
    return bar;
}

QString VNMessageBox::text() const
{
    return m_textLabel->text();
}

QString VNMessageBox::iconResource(QMessageBox::Icon icon)
{
    switch (icon) {
    case QMessageBox::Information:
        return QStringLiteral(":/Style/VnWidgets/VNMessageBox/information.svg");
    case QMessageBox::Warning:
        return QStringLiteral(":/Style/VnWidgets/VNMessageBox/warning.svg");
    case QMessageBox::Critical:
        return QStringLiteral(":/Style/VnWidgets/VNMessageBox/critical.svg");
    case QMessageBox::Question:
        return QStringLiteral(":/Style/VnWidgets/VNMessageBox/question.svg");
    case QMessageBox::NoIcon:
        break;
    }
    return QString();
}

void VNMessageBox::setTitleCloseButtonVisible(bool visible)
{
    m_titleCloseVisible = visible;
    m_titleCloseButton->setVisible(visible);
}

void VNMessageBox::setDefaultButton(QMessageBox::StandardButton which)
{
    if (auto* push = qobject_cast<QPushButton*>(button(which))) {
        push->setDefault(true);
        push->setFocus();
    }
}

QAbstractButton* VNMessageBox::button(QMessageBox::StandardButton which) const
{
    return m_buttonBox->button(QDialogButtonBox::StandardButton(int(which)));
}

QMessageBox::StandardButtons VNMessageBox::standardButtons() const
{
    return QMessageBox::StandardButtons(int(m_buttonBox->standardButtons()));
}

// The same choice as Qt's own message box, so that Escape answers as users know it: Cancel, else a
// lone button, else the one rejecting button, else the one "no" button; anything else is ambiguous.
QMessageBox::StandardButton VNMessageBox::escapeButton() const
{
    if (button(QMessageBox::Cancel))
        return QMessageBox::Cancel;
    const QList<QAbstractButton*> buttons = m_buttonBox->buttons();
    if (buttons.size() == 1)
        return QMessageBox::StandardButton(int(m_buttonBox->standardButton(buttons.first())));
    for (QDialogButtonBox::ButtonRole role : {QDialogButtonBox::RejectRole, QDialogButtonBox::NoRole}) {
        QList<QAbstractButton*> withRole;
        for (QAbstractButton* candidate : buttons) {
            if (m_buttonBox->buttonRole(candidate) == role)
                withRole << candidate;
        }
        if (withRole.size() == 1)
            return QMessageBox::StandardButton(int(m_buttonBox->standardButton(withRole.first())));
    }
    return QMessageBox::NoButton;
}

int VNMessageBox::exec()
{
    return QDialog::exec();
}

void VNMessageBox::onButtonClicked(QAbstractButton* clicked)
{
    done(int(m_buttonBox->standardButton(clicked)));
}

// Escape and the title bar's close button act as the box's escape button. Without one, only an
// open title bar close button may dismiss the box; otherwise Escape does nothing.
void VNMessageBox::reject()
{
    if (QAbstractButton* escape = button(escapeButton())) {
        escape->click();
        return;
    }
    if (m_titleCloseVisible)
        done(QMessageBox::NoButton);
}

void VNMessageBox::closeEvent(QCloseEvent* event)
{
    // Closing from outside the box (a window manager, Alt+F4) follows the same rule as Escape.
    event->ignore();
    reject();
}

bool VNMessageBox::eventFilter(QObject* watched, QEvent* event)
{
    if (watched->objectName() == QLatin1String("titleBar")) {
        if (event->type() == QEvent::MouseButtonPress) {
            auto* mouse = static_cast<QMouseEvent*>(event);
            if (mouse->button() == Qt::LeftButton) {
                m_dragOffset = QtCompat::globalPosition(mouse) - frameGeometry().topLeft();
                return true;
            }
        } else if (event->type() == QEvent::MouseMove) {
            auto* mouse = static_cast<QMouseEvent*>(event);
            if (mouse->buttons() & Qt::LeftButton) {
                move(QtCompat::globalPosition(mouse) - m_dragOffset);
                return true;
            }
        }
    }
    return QDialog::eventFilter(watched, event);
}

void VNMessageBox::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    // Frameless windows get no border from the window manager, so draw one.
    painter.setPen(palette().color(QPalette::Dark));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

QMessageBox::StandardButton VNMessageBox::showBox(QMessageBox::Icon icon, QWidget* parent, const QString& title,
                                                  const QString& text, QMessageBox::StandardButtons buttons,
                                                  QMessageBox::StandardButton defaultButton)
{
    VNMessageBox box(icon, title, text, buttons, parent);
    box.setDefaultButton(defaultButton);
    return QMessageBox::StandardButton(box.exec());
}

QMessageBox::StandardButton VNMessageBox::warning(QWidget* parent, const QString& title, const QString& text,
                                                  QMessageBox::StandardButtons buttons,
                                                  QMessageBox::StandardButton defaultButton)
{
    return showBox(QMessageBox::Warning, parent, title, text, buttons, defaultButton);
}

QMessageBox::StandardButton VNMessageBox::information(QWidget* parent, const QString& title, const QString& text,
                                                      QMessageBox::StandardButtons buttons,
                                                      QMessageBox::StandardButton defaultButton)
{
    return showBox(QMessageBox::Information, parent, title, text, buttons, defaultButton);
}

QMessageBox::StandardButton VNMessageBox::question(QWidget* parent, const QString& title, const QString& text,
                                                   QMessageBox::StandardButtons buttons,
                                                   QMessageBox::StandardButton defaultButton)
{
    return showBox(QMessageBox::Question, parent, title, text, buttons, defaultButton);
}

QMessageBox::StandardButton VNMessageBox::critical(QWidget* parent, const QString& title, const QString& text,
                                                   QMessageBox::StandardButtons buttons,
                                                   QMessageBox::StandardButton defaultButton)
{
    return showBox(QMessageBox::Critical, parent, title, text, buttons, defaultButton);
}

} // namespace Varnis
