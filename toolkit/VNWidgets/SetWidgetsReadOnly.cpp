#include "SetWidgetsReadOnly.h"

#include "VNWidgetStatus.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <QVariant>

const char* const SetWidgetsReadOnly::readOnlyPropertyName = "readOnly";

SetWidgetsReadOnly::SetWidgetsReadOnly(bool readOnly)
    : m_readOnly(readOnly)
{}

void SetWidgetsReadOnly::operator()(QWidget* widget) const
{
    if (!widget)
        return;
    if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
        edit->setReadOnly(m_readOnly);
    } else if (auto* spin = qobject_cast<QAbstractSpinBox*>(widget)) {
        spin->setReadOnly(m_readOnly);
    } else if (auto* text = qobject_cast<QTextEdit*>(widget)) {
        text->setReadOnly(m_readOnly);
    } else if (auto* plain = qobject_cast<QPlainTextEdit*>(widget)) {
        plain->setReadOnly(m_readOnly);
    } else if (qobject_cast<QComboBox*>(widget) || qobject_cast<QAbstractButton*>(widget)) {
        // Neither has a read-only mode of its own: they keep their value visible but take no
        // mouse or keyboard input, and the style sheet draws them flat.
        static const char* const savedFocus = "_vnFocusPolicyBeforeReadOnly";
        if (m_readOnly && !widget->property(savedFocus).isValid())
            widget->setProperty(savedFocus, static_cast<int>(widget->focusPolicy()));
        const QVariant saved = widget->property(savedFocus);
        widget->setAttribute(Qt::WA_TransparentForMouseEvents, m_readOnly);
        if (m_readOnly)
            widget->setFocusPolicy(Qt::NoFocus);
        else if (saved.isValid())
            widget->setFocusPolicy(static_cast<Qt::FocusPolicy>(saved.toInt()));
    } else {
        return;
    }
    widget->setProperty(readOnlyPropertyName, m_readOnly);
    VNWidgetStatus::repolish(widget);
}
