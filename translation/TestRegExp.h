#pragma once

#include "TranslationFileTool.h"
#include "TranslationRunner.h"
#include "ui_TestRegExp.h"

#include <QDialog>

// Runs the operations of the mock-translation tool on one chosen file and shows their results.
class TestRegExp : public QDialog
{
    Q_OBJECT

public:
    explicit TestRegExp(QWidget* parent);
    ~TestRegExp() override;

    // Rewrites the tr( calls of the whole tree named by $VN_TRANSLATION_SOURCE_PATH.
    void translateWholeProject();
    // Rewrites the tr( calls of every header and source file below path, showing each file.
    TranslationRunner::Result processDirectory(const QString& path);

protected slots:
    void onBtnStartClicked();
    void onBtnFileDialogClicked();

protected:
    // Asks for the file to work on; an empty result means the user cancelled.
    virtual QString chooseFile(const QString& startDirectory);

private:
    // Shows the message at once, also while the GUI thread keeps working.
    void showNow(const QString& message);

    Ui::TestRegExpClass ui;
    TranslationFileTool m_tool;
};
