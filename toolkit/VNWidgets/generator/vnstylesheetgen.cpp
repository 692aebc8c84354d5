// Writes the toolkit style sheet: the hand-written one with its status rules filled in from the
// status palette. Run by the build: vnstylesheetgen HAND_WRITTEN.qss OUTPUT.qss
#include "VNStatusStyleSheet_p.h"

#include <QFile>
#include <QSaveFile>

#include <cstdio>

namespace {
int fail(const QString& message)
{
    std::fprintf(stderr, "vnstylesheetgen: %s\n", qPrintable(message));
    return 1;
}
} // namespace

int main(int argc, char* argv[])
{
    if (argc != 3)
        return fail(QStringLiteral("usage: vnstylesheetgen HAND_WRITTEN.qss OUTPUT.qss"));
    QFile input(QFile::decodeName(argv[1]));
    if (!input.open(QIODevice::ReadOnly))
        return fail(QStringLiteral("cannot read %1: %2").arg(input.fileName(), input.errorString()));
    const QString sheet = VNStatusStyleSheet::complete(QString::fromUtf8(input.readAll()));
    if (sheet.isEmpty())
        return fail(QStringLiteral("%1 has no line %2").arg(input.fileName(), VNStatusStyleSheet::marker()));
    QSaveFile output(QFile::decodeName(argv[2]));
    if (!output.open(QIODevice::WriteOnly) || output.write(sheet.toUtf8()) < 0 || !output.commit())
        return fail(QStringLiteral("cannot write %1: %2").arg(output.fileName(), output.errorString()));
    return 0;
}
