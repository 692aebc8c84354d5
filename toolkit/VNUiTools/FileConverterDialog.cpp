#include "FileConverterDialog.h"

#include "FileConverterConfigurationInterface.h"

#include <FileName.h>

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSettings>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

namespace Varnis {

namespace {
const QString inputEntry = QStringLiteral("inputFile");
const QString outputEntry = QStringLiteral("outputDirectory");

QToolButton* makeChooseButton(const QString& objectName, QWidget* parent)
{
    auto* button = new QToolButton(parent);
    button->setObjectName(objectName);
    button->setText(QStringLiteral("..."));
    return button;
}

QHBoxLayout* joined(QLineEdit* edit, QToolButton* button)
{
    auto* row = new QHBoxLayout;
    row->setSpacing(0);
    row->addWidget(edit);
    row->addWidget(button);
    return row;
}
} // namespace

FileConverterDialog::FileConverterDialog(FileConverterConfigurationInterface* configuration, const QString& title,
                                         const QString& description, QWidget* parent)
    : QDialog(parent)
    , m_configuration(configuration)
{
    setObjectName(QStringLiteral("FileConverterDialog"));
    setWindowTitle(title);
    resize(520, 380);

    auto* descriptionLabel = new QLabel(description, this);
    descriptionLabel->setObjectName(QStringLiteral("description"));
    descriptionLabel->setWordWrap(true);

    m_inputFile = new QLineEdit(this);
    m_inputFile->setObjectName(QStringLiteral("inputFile"));
    m_inputFile->setAccessibleName(tr("Input file"));
    m_chooseInput = makeChooseButton(QStringLiteral("chooseInputFile"), this);
    m_outputDirectory = new QLineEdit(this);
    m_outputDirectory->setObjectName(QStringLiteral("outputDirectory"));
    m_outputDirectory->setAccessibleName(tr("Output folder"));
    m_chooseOutput = makeChooseButton(QStringLiteral("chooseOutputDirectory"), this);

    auto* form = new QFormLayout;
    form->addRow(tr("Input file:"), joined(m_inputFile, m_chooseInput));
    form->addRow(tr("Output directory:"), joined(m_outputDirectory, m_chooseOutput));

    m_messageList = new QListWidget(this);
    m_messageList->setObjectName(QStringLiteral("messages"));
    m_messageList->setAccessibleName(tr("Messages"));
    m_messageList->setWordWrap(true);
    m_outcome = new QLabel(this);
    m_outcome->setObjectName(QStringLiteral("outcome"));
    m_outcome->setWordWrap(true);

    auto* buttons = new QDialogButtonBox(this);
    m_convertButton = buttons->addButton(tr("Convert"), QDialogButtonBox::ActionRole);
    m_convertButton->setObjectName(QStringLiteral("convert"));
    m_convertButton->setDefault(true);
    QPushButton* closeButton = buttons->addButton(QDialogButtonBox::Close);
    closeButton->setText(tr("Close"));

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(descriptionLabel);
    layout->addLayout(form);
    layout->addWidget(new QLabel(tr("Messages:"), this));
    layout->addWidget(m_messageList, 1);
    layout->addWidget(m_outcome);
    layout->addWidget(buttons);

    QString caption;
    QString filter;
    QString inputKey;
    m_configuration->getInputFileSettings(caption, filter, inputKey);
    QString outputKey;
    m_configuration->getOutputDirectorySettings(caption, outputKey);
    QSettings settings;
    m_inputFile->setText(settings.value(settingsKey(inputKey, inputEntry)).toString());
    m_outputDirectory->setText(settings.value(settingsKey(outputKey, outputEntry)).toString());

    connect(m_chooseInput, &QToolButton::clicked, this, &FileConverterDialog::chooseInputFile);
    connect(m_chooseOutput, &QToolButton::clicked, this, &FileConverterDialog::chooseOutputDirectory);
    connect(m_convertButton, &QPushButton::clicked, this, &FileConverterDialog::convert);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_inputFile, &QLineEdit::textChanged, this, &FileConverterDialog::updateConvertButton);
    connect(m_outputDirectory, &QLineEdit::textChanged, this, &FileConverterDialog::updateConvertButton);
    updateConvertButton();
}

FileConverterDialog::~FileConverterDialog() = default;

void FileConverterDialog::run()
{
    show();
    raise();
    activateWindow();
}

QString FileConverterDialog::inputFile() const
{
    return m_inputFile->text();
}

void FileConverterDialog::setInputFile(const QString& path)
{
    m_inputFile->setText(QDir::toNativeSeparators(path));
}

QString FileConverterDialog::outputDirectory() const
{
    return m_outputDirectory->text();
}

void FileConverterDialog::setOutputDirectory(const QString& path)
{
    m_outputDirectory->setText(QDir::toNativeSeparators(path));
}

QStringList FileConverterDialog::messages() const
{
    QStringList texts;
    for (int row = 0; row < m_messageList->count(); ++row)
        texts << m_messageList->item(row)->text();
    return texts;
}

// A converter may block the event loop between messages, so the list is laid out and painted
// right away instead of waiting for the next pass of the loop.
void FileConverterDialog::addMessage(const QString& message)
{
    m_messageList->addItem(message);
    if (!m_messageList->isVisible())
        return;
    m_messageList->doItemsLayout();
    m_messageList->scrollToBottom();
    m_messageList->viewport()->repaint();
}

int FileConverterDialog::convert()
{
    const QString input = QDir::fromNativeSeparators(m_inputFile->text().trimmed());
    const QString output = QDir::fromNativeSeparators(m_outputDirectory->text().trimmed());
    if (input.isEmpty() || output.isEmpty()) {
        showOutcome(tr("Choose an input file and an output directory first."), false);
        return -1;
    }
    if (!QFileInfo(output).isDir()) {
        showOutcome(tr("The output directory %1 does not exist.").arg(QDir::toNativeSeparators(output)), false);
        return -1;
    }
    QString caption;
    QString filter;
    QString inputKey;
    m_configuration->getInputFileSettings(caption, filter, inputKey);
    QString outputKey;
    m_configuration->getOutputDirectorySettings(caption, outputKey);
    QSettings settings;
    settings.setValue(settingsKey(inputKey, inputEntry), input);
    settings.setValue(settingsKey(outputKey, outputEntry), output);

    m_messageList->clear();
    m_outcome->clear();
    m_convertButton->setEnabled(false);
    m_lastStatus = m_configuration->convert(FileName(input), output, this);
    m_convertButton->setEnabled(true);
    if (m_lastStatus == 0)
        showOutcome(tr("Conversion finished."), true);
    else
        showOutcome(tr("Conversion failed (status %1).").arg(m_lastStatus), false);
    emit conversionFinished(m_lastStatus);
    return m_lastStatus;
}

void FileConverterDialog::chooseInputFile()
{
    QString caption;
    QString filter;
    QString key;
    m_configuration->getInputFileSettings(caption, filter, key);
    const QString start = m_inputFile->text().isEmpty() ? QSettings().value(settingsKey(key, inputEntry)).toString()
                                                        : m_inputFile->text();
    const QString path = askForInputFile(caption, start, filter);
    if (path.isEmpty())
        return;
    setInputFile(path);
    QSettings().setValue(settingsKey(key, inputEntry), path);
}

void FileConverterDialog::chooseOutputDirectory()
{
    QString caption;
    QString key;
    m_configuration->getOutputDirectorySettings(caption, key);
    const QString start = m_outputDirectory->text().isEmpty()
                              ? QSettings().value(settingsKey(key, outputEntry)).toString()
                              : m_outputDirectory->text();
    const QString path = askForOutputDirectory(caption, start);
    if (path.isEmpty())
        return;
    setOutputDirectory(path);
    QSettings().setValue(settingsKey(key, outputEntry), path);
}

QString FileConverterDialog::askForInputFile(const QString& caption, const QString& startPath, const QString& filter)
{
    return QFileDialog::getOpenFileName(this, caption, startPath, filter);
}

QString FileConverterDialog::askForOutputDirectory(const QString& caption, const QString& startDirectory)
{
    return QFileDialog::getExistingDirectory(this, caption, startDirectory);
}

void FileConverterDialog::showOutcome(const QString& text, bool success)
{
    m_outcome->setText(text);
    // The style sheet colours the outcome by this property.
    m_outcome->setProperty("success", success);
    m_outcome->style()->unpolish(m_outcome);
    m_outcome->style()->polish(m_outcome);
}

QString FileConverterDialog::settingsKey(const QString& key, const QString& entry) const
{
    return QStringLiteral("FileConverter/%1/%2").arg(key.isEmpty() ? QStringLiteral("Default") : key, entry);
}

void FileConverterDialog::updateConvertButton()
{
    m_convertButton->setEnabled(!m_inputFile->text().trimmed().isEmpty() &&
                                !m_outputDirectory->text().trimmed().isEmpty());
}

} // namespace Varnis
