#pragma once

#include "vnwidgets_export.h"

#include <QDialog>

class QCheckBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;

// Shows the style sheet the application runs with. Unless read-only, the sheet can be edited and
// applied live, and the sheet as it was when the viewer opened can be restored.
class VNWIDGETS_EXPORT DebugStyleSheet : public QDialog
{
    Q_OBJECT

public:
    DebugStyleSheet(QWidget* parent, bool readOnly);
    ~DebugStyleSheet() override;

    bool isReadOnly() const { return m_readOnly; }
    QString originalStyleSheet() const { return m_original; }

public slots:
    void applyStyleSheet();
    void revertStyleSheet();
    void reloadFromApplication();

private:
    void onTextChanged();
    void setApplied(bool applied);

    bool m_readOnly;
    QString m_original;
    QPlainTextEdit* m_editor = nullptr;
    QCheckBox* m_live = nullptr;
    QPushButton* m_apply = nullptr;
    QPushButton* m_revert = nullptr;
    QLabel* m_state = nullptr;
};
