// twc-translate: the translation tool of the collection on the command line.
#include "TranslationCommandLine.h"

#include <QCoreApplication>
#include <QTextStream>

#include <csignal>
#include <cstdio>

int main(int argc, char* argv[])
{
#ifdef SIGXFSZ
    // Beyond the file size limit a write should fail and be undone, not end the program halfway.
    std::signal(SIGXFSZ, SIG_IGN);
#endif
    QCoreApplication application(argc, argv);
    int exitCode = 0;
    {
        QTextStream out(stdout);
        QTextStream err(stderr);
        exitCode = TranslationCommandLine(out, err).run(QCoreApplication::arguments());
        out.flush();
        if (out.status() == QTextStream::Ok && std::fflush(stdout) == 0 && !std::ferror(stdout))
            return exitCode;
    }
    std::fputs("twc-translate: the results could not be written to standard output.\n", stderr);
    return exitCode == TranslationCommandLine::Success ? TranslationCommandLine::FileFailed : exitCode;
}
