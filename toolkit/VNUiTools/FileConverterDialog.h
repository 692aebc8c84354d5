#pragma once

#include "vnuitools_export.h"

#include <QDialog>

#include <memory>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QToolButton;

namespace Varnis {

class FileConverterConfigurationInterface;

// The toolkit's frame for file converters: the user picks an input file and an output directory
// with the captions, filter and settings keys that the configuration gives, presses "Convert",
// watches the converter's messages arrive in the message list and reads the outcome below it
// (status 0 is a success, anything else a failure). The last input file and output directory are
// remembered per settings key with QSettings under the application's organisation.
class VNUITOOLS_EXPORT FileConverterDialog : public QDialog
{
    Q_OBJECT

public:
    // Takes ownership of the configuration.
    FileConverterDialog(FileConverterConfigurationInterface* configuration, const QString& title,
                        const QString& description, QWidget* parent = nullptr);
    ~FileConverterDialog() override;

    // Shows the frame as a window of its own and returns at once; the conversion starts from the
    // "Convert" button.
    void run();

    QString inputFile() const;
    void setInputFile(const QString& path);
    QString outputDirectory() const;
    void setOutputDirectory(const QString& path);

    QStringList messages() const;
    // Appends a message and shows it at once, even while a converter keeps the event loop busy.
    void addMessage(const QString& message);

    // The status of the last conversion, -1 before the first.
    int lastStatus() const { return m_lastStatus; }

public slots:
    // Converts the chosen input into the chosen directory; returns the converter's status, or -1
    // when the choices are incomplete (the frame says what is missing).
    int convert();

signals:
    void conversionFinished(int status);

protected:
    // The file dialogs, replaceable so that tests never wait for a user; an empty result means
    // that the user cancelled.
    virtual QString askForInputFile(const QString& caption, const QString& startPath, const QString& filter);
    virtual QString askForOutputDirectory(const QString& caption, const QString& startDirectory);

private:
    void chooseInputFile();
    void chooseOutputDirectory();
    void showOutcome(const QString& text, bool success);
    QString settingsKey(const QString& key, const QString& entry) const;
    void updateConvertButton();

    std::unique_ptr<FileConverterConfigurationInterface> m_configuration;
    QLineEdit* m_inputFile = nullptr;
    QToolButton* m_chooseInput = nullptr;
    QLineEdit* m_outputDirectory = nullptr;
    QToolButton* m_chooseOutput = nullptr;
    QPushButton* m_convertButton = nullptr;
    QListWidget* m_messageList = nullptr;
    QLabel* m_outcome = nullptr;
    int m_lastStatus = -1;
};

} // namespace Varnis
