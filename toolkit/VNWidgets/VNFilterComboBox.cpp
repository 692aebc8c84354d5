#include "VNFilterComboBox.h"

#include <QCompleter>
#include <QLineEdit>
#include <QListView>
#include <QTimer>

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
    // With long lists the popup must not measure every row it shows.
    if (auto* list = qobject_cast<QListView*>(m_completer->popup())) {
        list->setUniformItemSizes(true);
        list->setLayoutMode(QListView::Batched);
    }
    setCompleter(m_completer);
    connect(m_completer, QOverload<const QString&>::of(&QCompleter::activated), this, &VNFilterComboBox::chooseText);
}

// Entering the field selects its text, so the first key typed starts a new filter. The combo box
// takes the focus for its line edit, so the focus arrives here. Selecting at once would be undone
// by the click that gave the focus.
void VNFilterComboBox::focusInEvent(QFocusEvent* event)
{
    VNComboBox::focusInEvent(event);
    QTimer::singleShot(0, lineEdit(), &QLineEdit::selectAll);
}

void VNFilterComboBox::chooseText(const QString& text)
{
    const int index = findText(text, Qt::MatchFixedString);
    if (index >= 0)
        setCurrentIndex(index);
}
