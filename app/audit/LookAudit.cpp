#include "LookAudit.h"

#include "ContrastCheck.h"
#include "DensityCheck.h"
#include "KeyboardCheck.h"
#include "NameCheck.h"
#include "StatusGallery.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTextStream>
#include <QWidget>

namespace {
const QString allowListResource = QStringLiteral(":/TestWidgetCollection/Audit/audit-allow.txt");
const QString highDensityFolder = QStringLiteral("2x");
const int highDensityScale = 2;
// The high-density run opens every window once more; it gets as long as a screenshot run may take.
const int highDensityTimeoutMs = 240000;

QTextStream& err()
{
    static QTextStream stream(stderr);
    return stream;
}

QTextStream& out()
{
    static QTextStream stream(stdout);
    return stream;
}
} // namespace

LookAudit::LookAudit(const QString& directory, const QString& hostProgram)
    : m_directory(directory)
    , m_hostProgram(hostProgram)
{
    Q_INIT_RESOURCE(audit);
    m_allowList.parse(builtInAllowList());
}

LookAudit::~LookAudit()
{
    if (m_highDensityRun && m_highDensityRun->state() != QProcess::NotRunning) {
        m_highDensityRun->kill();
        m_highDensityRun->waitForFinished();
    }
}

QString LookAudit::builtInAllowList()
{
    QFile file(allowListResource);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

bool LookAudit::isHighDensityRun() const
{
    return qApp->devicePixelRatio() > 1.0;
}

QString LookAudit::begin()
{
    if (!QDir().mkpath(m_directory) || !QFileInfo(m_directory).isWritable())
        return QStringLiteral("cannot write the audit to \"%1\"").arg(m_directory);
    if (isHighDensityRun() || m_hostProgram.isEmpty())
        return QString();
    // Runs beside this one: on a machine with two cores the audit takes as long as the longer run.
    m_highDensityRun = std::make_unique<QProcess>();
    m_highDensityRun->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_highDensityRun->setStandardOutputFile(QProcess::nullDevice());
    m_highDensityRun->start(m_hostProgram, {QStringLiteral("--audit"), QDir(m_directory).filePath(highDensityFolder),
                                            QStringLiteral("--scale"), QString::number(highDensityScale)});
    return QString();
}

void LookAudit::inspectWindow(const QString& windowName, const QString& caption, QWidget* window)
{
    if (isHighDensityRun()) {
        if (!m_inspected.contains(window))
            add(DensityCheck(windowName, window).run());
        m_inspected.insert(window);
        return;
    }
    m_report.addPicture(windowName, caption, window->grab().toImage());
    // A window seen before (the loupe lands in an open dialog) is pictured again, not checked again.
    if (m_inspected.contains(window))
        return;
    m_inspected.insert(window);
    add(NameCheck::run(windowName, window));
    KeyboardCheck keyboard(windowName, window);
    add(keyboard.run());
    m_tabStops += keyboard.tabStopCount();
    if (StatusGallery::isGallery(window)) {
        StatusGallery gallery(windowName, window);
        const StatusMatrix matrix = gallery.measure();
        m_report.setMatrix(matrix);
        add(gallery.findings(matrix));
        add(ContrastCheck::run(windowName, matrix, window->palette().color(QPalette::Window)));
    }
}

void LookAudit::add(QList<AuditFinding> findings)
{
    for (AuditFinding& finding : findings)
        m_allowList.allow(finding);
    m_report.addFindings(findings);
}

QString LookAudit::mergeHighDensityRun()
{
    if (!m_highDensityRun)
        return QString();
    if (m_highDensityRun->state() != QProcess::NotRunning)
        m_highDensityRun->waitForFinished(highDensityTimeoutMs);
    if (m_highDensityRun->state() != QProcess::NotRunning || m_highDensityRun->error() == QProcess::FailedToStart ||
        m_highDensityRun->exitStatus() != QProcess::NormalExit)
        return QStringLiteral("the run at --scale %1 did not finish").arg(highDensityScale);
    AuditReport highDensity;
    const QString error = highDensity.merge(QDir(m_directory).filePath(highDensityFolder), highDensityFolder);
    if (!error.isEmpty())
        return error;
    add(highDensity.findings());
    return QString();
}

int LookAudit::finish()
{
    QString error = mergeHighDensityRun();
    m_report.setTabStopCount(m_tabStops);
    if (error.isEmpty())
        error = m_report.save(m_directory);
    if (!error.isEmpty()) {
        err() << "testwidgetcollection: --audit: " << error << Qt::endl;
        return 1;
    }
    out() << QDir(m_directory).filePath(QStringLiteral("audit.html")) << '\n';
    for (const auto& count : m_report.openCountsByCheck())
        out() << count.first << ": " << count.second << '\n';
    out() << "findings: " << m_report.openFindingCount() << " ("
          << m_report.findings().size() - m_report.openFindingCount() << " allowed by design)" << Qt::endl;
    return m_report.openFindingCount() > 0 ? 1 : 0;
}
