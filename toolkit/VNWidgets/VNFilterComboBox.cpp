#include "VNFilterComboBox.h"

#include <QCompleter>
#include <QLineEdit>

VNFilterComboBox::VNFilterComboBox(QWidget* parent)
    : VNComboBox(parent)
    , m_completer(new QCompleter(this))
{
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    m_completer->setModel(model());
    m_completer->setCompletionColumn(modelColumn());
    m_completer->setCompletionMode(QCompleter::PopupCompletion);
    m_completer->setFilterMode(Qt::MatchContains);
    m_completer->setCaseSensitivity(Qt::CaseInsensitive);
    m_completer->setMaxVisibleItems(12);
    setCompleter(m_completer);
    connect(m_completer, QOverload<const QString&>::of(&QCompleter::activated), this, &VNFilterComboBox::chooseText);
}

void VNFilterComboBox::chooseText(const QString& text)
{
    const int index = findText(text, Qt::MatchFixedString);
    if (index >= 0)
        setCurrentIndex(index);
}
