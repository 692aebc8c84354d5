#pragma once

#include "VNLineEdit.h"
#include "vnwidgets_export.h"

// A line edit with a clear button: while it holds text, a cross at its right end empties it with
// one click, and Escape does the same from the keyboard. It emits cleared() after each clearing
// by the user. Status looks are those of VNLineEdit.
class VNWIDGETS_EXPORT VNClearLineEdit : public VNLineEdit
{
    Q_OBJECT

public:
    explicit VNClearLineEdit(QWidget* parent = nullptr);
    explicit VNClearLineEdit(const QString& text, QWidget* parent = nullptr);

    // The cross; visible only while the edit holds text and is editable.
    QAction* clearAction() const { return m_clearAction; }

signals:
    void cleared();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void clearByUser();
    void updateClearAction();

    QAction* m_clearAction;
};
