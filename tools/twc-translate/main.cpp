// twc-translate: the translation tool of the collection on the command line.
#include "TranslationCommandLine.h"

#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    QTextStream out(stdout);
    QTextStream err(stderr);
    return TranslationCommandLine(out, err).run(QCoreApplication::arguments());
}
