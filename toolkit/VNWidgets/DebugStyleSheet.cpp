#include "DebugStyleSheet.h"

#include <QApplication>
#include <QCheckBox>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

DebugStyleSheet::DebugStyleSheet(QWidget* parent, bool readOnly)
    : QDialog(parent, Qt::Window)
    , m_readOnly(readOnly)
    , m_original(qApp->styleSheet())
{
    setObjectName(QStringLiteral("DebugStyleSheet"));
    setWindowTitle(readOnly ? tr("Style Sheet") : tr("Style Sheet Editor"));
    resize(640, 720);

    m_editor = new QPlainTextEdit(this);
    m_editor->setObjectName(QStringLiteral("styleSheetEdit"));
    m_editor->setAccessibleName(tr("Style sheet"));
    m_editor->setTabChangesFocus(true);
    m_editor->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_editor->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_editor->setReadOnly(readOnly);
    m_editor->setPlainText(m_original);

    m_live = new QCheckBox(tr("Apply while typing"), this);
    m_live->setObjectName(QStringLiteral("liveCheckBox"));
    m_apply = new QPushButton(tr("Apply"), this);
    m_apply->setObjectName(QStringLiteral("applyButton"));
    m_revert = new QPushButton(tr("Revert to Original"), this);
    m_revert->setObjectName(QStringLiteral("revertButton"));
    auto* reload = new QPushButton(tr("Reload"), this);
    reload->setObjectName(QStringLiteral("reloadButton"));
    m_state = new QLabel(this);
    m_state->setObjectName(QStringLiteral("stateLabel"));

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_live);
    buttons->addWidget(m_state, 1);
    buttons->addWidget(reload);
    buttons->addWidget(m_revert);
    buttons->addWidget(m_apply);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_editor, 1);
    layout->addLayout(buttons);

    for (QWidget* editing :
         {static_cast<QWidget*>(m_live), static_cast<QWidget*>(m_apply), static_cast<QWidget*>(m_revert)})
        editing->setVisible(!readOnly);

    connect(m_editor, &QPlainTextEdit::textChanged, this, &DebugStyleSheet::onTextChanged);
    connect(m_apply, &QPushButton::clicked, this, &DebugStyleSheet::applyStyleSheet);
    connect(m_revert, &QPushButton::clicked, this, &DebugStyleSheet::revertStyleSheet);
    connect(reload, &QPushButton::clicked, this, &DebugStyleSheet::reloadFromApplication);
    setApplied(true);
}

DebugStyleSheet::~DebugStyleSheet() = default;

void DebugStyleSheet::applyStyleSheet()
{
    if (m_readOnly)
        return;
    qApp->setStyleSheet(m_editor->toPlainText());
    setApplied(true);
}

void DebugStyleSheet::revertStyleSheet()
{
    if (m_readOnly)
        return;
    m_editor->setPlainText(m_original);
    qApp->setStyleSheet(m_original);
    setApplied(true);
}

void DebugStyleSheet::reloadFromApplication()
{
    m_editor->setPlainText(qApp->styleSheet());
    setApplied(true);
}

void DebugStyleSheet::onTextChanged()
{
    if (m_readOnly)
        return;
    if (m_live->isChecked())
        applyStyleSheet();
    else
        setApplied(m_editor->toPlainText() == qApp->styleSheet());
}

void DebugStyleSheet::setApplied(bool applied)
{
    m_apply->setEnabled(!applied);
    m_state->setText(applied ? QString() : tr("Edited, not applied"));
}
