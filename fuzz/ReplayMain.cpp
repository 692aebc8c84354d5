// Runs a fuzz target over the files of its seed corpus, so that the target stays built and its
// checks run in every test run, also without a fuzzing compiler; each seed is also grown to
// several megabytes to catch operations whose time grows faster than their input.
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);
void checkGrowth(const QByteArray& seed);

namespace {
bool replay(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "cannot read %s\n", qPrintable(path));
        return false;
    }
    const QByteArray input = file.readAll();
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(input.constData()), size_t(input.size()));
    checkGrowth(input);
    return true;
}
} // namespace

int main(int argc, char* argv[])
{
    int replayed = 0;
    for (int index = 1; index < argc; ++index) {
        const QString argument = QFile::decodeName(argv[index]);
        QStringList files;
        if (QFileInfo(argument).isDir()) {
            const QDir dir(argument);
            for (const QString& name : dir.entryList(QDir::Files, QDir::Name))
                files << dir.filePath(name);
        } else {
            files << argument;
        }
        for (const QString& file : files) {
            if (!replay(file))
                return 1;
            ++replayed;
        }
    }
    std::printf("replayed %d inputs\n", replayed);
    // An empty corpus would pass without testing anything.
    return replayed > 0 ? 0 : 1;
}
