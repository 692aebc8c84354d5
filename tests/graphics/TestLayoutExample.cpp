#include "TestLayoutExample.h"

#include "MyButton.h"

#include <QBoxLayout>
#include <QEvent>
#include <QGridLayout>
#include <QLineEdit>
#include <QMetaEnum>
#include <QSignalBlocker>
#include <QSpacerItem>
#include <QTextEdit>

namespace {
QSizePolicy::Policy policyFromName(const QString& text)
{
    const QMetaObject& meta = QSizePolicy::staticMetaObject;
    const QMetaEnum policies = meta.enumerator(meta.indexOfEnumerator("Policy"));
    return static_cast<QSizePolicy::Policy>(policies.keyToValue(text.toLatin1().constData()));
}

// Display fields: grey while active, lighter while disabled.
QPalette displayPalette(QPalette palette)
{
    palette.setColor(QPalette::Active, QPalette::Base, QColor(194, 194, 194));
    palette.setColor(QPalette::Inactive, QPalette::Base, QColor(194, 194, 194));
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor(240, 240, 240));
    return palette;
}
} // namespace

TestLayoutExample::TestLayoutExample(QWidget* parent)
    : QDialog(parent, Qt::WindowFlags())
{
    setupUi(this);
    QtCompat::autoConnectIndexText(comboHSizePolicy, this, &TestLayoutExample::on_comboHSizePolicy_currentIndexChanged);
    QtCompat::autoConnectIndexText(comboVSizePolicy, this, &TestLayoutExample::on_comboVSizePolicy_currentIndexChanged);
    for (QLineEdit* display : {sizeHintW, sizeHintH, minSizeHintW, minSizeHintH, sizeW, sizeH})
        display->setPalette(displayPalette(display->palette()));

    m_codeView = new QTextEdit(frame);
    m_codeView->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    m_codeView->setTabChangesFocus(true);
    m_codeView->setAccessibleName(tr("Button source"));
    auto* lineEdit = new QLineEdit(QStringLiteral("QLineEdit"), frame);
    lineEdit->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    lineEdit->setAccessibleName(tr("Line edit"));
    m_button = new QPushButton(frame);

    auto* box = new QBoxLayout(QBoxLayout::LeftToRight);
    box->addWidget(m_codeView);
    box->addWidget(lineEdit);
    box->addWidget(m_button);
    frame->setLayout(box);
    m_layout = box;

    m_button->installEventFilter(this);
    setStartState();
}

TestLayoutExample::~TestLayoutExample() = default;

void TestLayoutExample::setStartState()
{
    comboLayout->setCurrentIndex(0);
    buttonText->setText(QStringLiteral("Button"));
    minSizeW->setValue(0);
    minSizeH->setValue(0);
    maxSizeW->setValue(16777215);
    maxSizeH->setValue(16777215);
    comboHSizePolicy->setCurrentIndex(1);
    comboVSizePolicy->setCurrentIndex(0);
    addStretch->setChecked(false);
    useMyButton->setChecked(false);
}

int TestLayoutExample::layoutKind(QLayout* layout)
{
    if (auto* box = qobject_cast<QBoxLayout*>(layout)) {
        const QBoxLayout::Direction direction = box->direction();
        if (direction == QBoxLayout::LeftToRight || direction == QBoxLayout::RightToLeft)
            return 0;
        return 1;
    }
    if (qobject_cast<QGridLayout*>(layout))
        return 2;
    return -1;
}

QString TestLayoutExample::myButtonSource(int extraWidth)
{
    // Shows the rule as it was first written; the real minimumSizeHint() adds 20 pixels.
    return QStringLiteral(
               "MyButton::MyButton(QWidget *parent)\n    : QPushButton(parent)\n{\n\n}\n\n"
               "MyButton::~MyButton()\n{\n\n}\n\n"
               "QSize MyButton::sizeHint() const\n{\n    return minimumSizeHint() + QSize(%1,20);\n}\n\n"
               "QSize MyButton::minimumSizeHint() const\n{\n    QRect r(fontMetrics().boundingRect(text()));\n\n"
               "    return r.size();\n}\n")
        .arg(extraWidth);
}

void TestLayoutExample::refreshSizeDisplay()
{
    sizeHintW->setText(QString::number(m_button->sizeHint().width()));
    sizeHintH->setText(QString::number(m_button->sizeHint().height()));
    sizeW->setText(QString::number(m_button->width()));
    sizeH->setText(QString::number(m_button->height()));
    minSizeHintW->setText(QString::number(m_button->minimumSizeHint().width()));
    minSizeHintH->setText(QString::number(m_button->minimumSizeHint().height()));
}

bool TestLayoutExample::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_button && event->type() == QEvent::Resize)
        refreshSizeDisplay();
    return QObject::eventFilter(watched, event);
}

void TestLayoutExample::moveItems(QLayout* from, QLayout* to)
{
    auto* grid = qobject_cast<QGridLayout*>(to);
    auto* box = qobject_cast<QBoxLayout*>(to);
    int taken = 0;
    while (QLayoutItem* item = from->takeAt(0)) {
        if (grid)
            grid->addItem(item, taken / 2, taken % 2, 1, 1);
        else if (box)
            box->addItem(item);
        ++taken;
    }
}

void TestLayoutExample::on_comboLayout_currentIndexChanged(int index)
{
    const int kind = layoutKind(m_layout);
    if (kind == index)
        return;
    if ((kind == 0 || kind == 1) && (index == 0 || index == 1)) {
        auto* box = static_cast<QBoxLayout*>(m_layout);
        box->setDirection(index == 0 ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
        box->activate();
        box->update();
        return;
    }
    QWidget* owner = m_layout->parentWidget();
    QLayout* layout = nullptr;
    if (index == 0)
        layout = new QBoxLayout(QBoxLayout::LeftToRight);
    else if (index == 1)
        layout = new QBoxLayout(QBoxLayout::TopToBottom);
    else
        layout = new QGridLayout;
    moveItems(m_layout, layout);
    // The frame takes a new layout only once the old one is gone.
    delete m_layout;
    m_layout = layout;
    owner->setLayout(layout);
    layout->activate();
    layout->update();
}

void TestLayoutExample::on_buttonText_textChanged(const QString& text)
{
    m_button->setText(text);
    refreshSizeDisplay();
}

void TestLayoutExample::on_resetBtn_clicked(bool)
{
    setStartState();
}

void TestLayoutExample::on_minSizeW_valueChanged(int value)
{
    m_button->setMinimumWidth(value);
}

void TestLayoutExample::on_minSizeH_valueChanged(int value)
{
    m_button->setMinimumHeight(value);
}

void TestLayoutExample::on_maxSizeW_valueChanged(int value)
{
    m_button->setMaximumWidth(value);
}

void TestLayoutExample::on_maxSizeH_valueChanged(int value)
{
    m_button->setMaximumHeight(value);
}

void TestLayoutExample::on_m_mySize_valueChanged(int value)
{
    auto* myButton = qobject_cast<MyButton*>(m_button);
    if (!myButton)
        return;
    myButton->setExtraWidth(value);
    m_codeView->setPlainText(myButtonSource(value));
}

void TestLayoutExample::on_comboHSizePolicy_currentIndexChanged(const QString& text)
{
    QSizePolicy policy = m_button->sizePolicy();
    policy.setHorizontalPolicy(policyFromName(text));
    m_button->setSizePolicy(policy);
}

void TestLayoutExample::on_comboVSizePolicy_currentIndexChanged(const QString& text)
{
    QSizePolicy policy = m_button->sizePolicy();
    policy.setVerticalPolicy(policyFromName(text));
    m_button->setSizePolicy(policy);
}

void TestLayoutExample::on_addStretch_clicked(bool checked)
{
    if (checked) {
        m_layout->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Expanding));
        return;
    }
    for (int index = m_layout->count() - 1; index >= 0; --index) {
        QLayoutItem* item = m_layout->itemAt(index);
        if (QSpacerItem* spacer = item->spacerItem()) {
            m_layout->removeItem(item);
            m_removedStretches.emplace_back(spacer);
        }
    }
}

void TestLayoutExample::on_useMyButton_clicked(bool checked)
{
    QPushButton* old = m_button;
    QPushButton* button = nullptr;
    if (checked) {
        auto* myButton = new MyButton(old->parentWidget());
        {
            const QSignalBlocker blocker(m_mySize);
            m_mySize->setValue(myButton->extraSize().width());
        }
        m_codeView->setPlainText(myButtonSource(myButton->extraSize().width()));
        button = myButton;
    } else {
        if (!qobject_cast<MyButton*>(old))
            return;
        button = new QPushButton(old->parentWidget());
        m_codeView->clear();
    }

    old->removeEventFilter(this);
    button->setSizePolicy(old->sizePolicy());
    button->setMinimumSize(old->minimumSize());
    button->setMaximumSize(old->maximumSize());
    button->setText(old->text());
    m_button = button;

    const int index = m_layout->indexOf(old);
    if (auto* grid = qobject_cast<QGridLayout*>(m_layout)) {
        int row, column, rowSpan, columnSpan;
        grid->getItemPosition(index, &row, &column, &rowSpan, &columnSpan);
        grid->addWidget(button, row, column, rowSpan, columnSpan);
    } else {
        static_cast<QBoxLayout*>(m_layout)->insertWidget(index, button);
    }
    m_layout->removeWidget(old);
    delete old;
    button->installEventFilter(this);
}
