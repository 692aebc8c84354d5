#include "TestRegExp.h"

#include "TranslationMessages.h"

#include <QFileDialog>

TestRegExp::TestRegExp(QWidget* parent)
    : QDialog(parent)
{
    ui.setupUi(this);
    connect(ui.m_btnFileDialog, SIGNAL(clicked()), this, SLOT(onBtnFileDialogClicked()));
    connect(ui.m_btnStart, SIGNAL(clicked()), this, SLOT(onBtnStartClicked()));
}

TestRegExp::~TestRegExp() = default;

void TestRegExp::onBtnStartClicked()
{
    const QString path = ui.m_pathDisplay->text();
    const auto mode = TranslationRunner::Operation(ui.m_modeSelection->currentIndex());
    if (mode == TranslationRunner::RewriteWholeProject) {
        ui.m_feedback->setText(TranslationMessages::featureDisabled());
        return;
    }
    if (path.isEmpty()) {
        ui.m_feedback->setText(TranslationMessages::choosePathFirst());
        return;
    }
    const TranslationRunner runner(m_tool, [this](const QString& message) { showNow(message); });
    ui.m_feedback->setText(runner.runOnFile(mode, path).shownText());
}

void TestRegExp::onBtnFileDialogClicked()
{
    const QString shown = ui.m_pathDisplay->text();
    const QString startDirectory =
        shown.isEmpty() ? QStringLiteral("/home") : shown.left(shown.lastIndexOf(QLatin1Char('/')));
    const QString chosen = chooseFile(startDirectory);
    if (!chosen.isEmpty())
        ui.m_pathDisplay->setText(chosen);
}

QString TestRegExp::chooseFile(const QString& startDirectory)
{
    return QFileDialog::getOpenFileName(this, QStringLiteral("Open File"), startDirectory,
                                        QStringLiteral("Traslation Files (*.ts *.h *.cpp)"));
}

void TestRegExp::translateWholeProject()
{
    const QString root = TranslationFileTool::sourceRootFromEnvironment();
    if (root.isEmpty()) {
        ui.m_feedback->setText(TranslationMessages::sourcePathNotSet());
        return;
    }
    ui.m_feedback->setText(processDirectory(root).shownText());
}

TranslationRunner::Result TestRegExp::processDirectory(const QString& path)
{
    const TranslationRunner runner(m_tool, [this](const QString& message) { showNow(message); });
    return runner.rewriteTree(path);
}

void TestRegExp::showNow(const QString& message)
{
    ui.m_feedback->setText(message);
    ui.m_feedback->repaint();
}
