#include "TrCallRewriter.h"

#include <QDir>
#include <QFileInfo>

namespace {

bool isAsciiLetterOrDigit(QChar character)
{
    const ushort code = character.unicode();
    return (code >= 'a' && code <= 'z') || (code >= 'A' && code <= 'Z') || (code >= '0' && code <= '9');
}

/*
  Finds the first match of the minimal QRegExp ([^a-zA-Z0-9])tr(\s*)\( at or after from: returns
  the position of the preceding character and sets callEnd behind the parenthesis, or returns -1.
*/
int findTrCall(const QString& text, int from, int* callEnd)
{
    const QChar* data = text.constData();
    const int size = text.size();
    for (int at = from; at + 3 < size; ++at) {
        if (data[at + 1] != QLatin1Char('t') || data[at + 2] != QLatin1Char('r') || isAsciiLetterOrDigit(data[at]))
            continue;
        int next = at + 3;
        while (next < size && data[next].isSpace())
            ++next;
        if (next < size && data[next] == QLatin1Char('(')) {
            *callEnd = next + 1;
            return at;
        }
    }
    return -1;
}

QString rewriteCalls(const QString& content, const QString& context, int* calls)
{
    const QString call = QLatin1String("QApplication::translate(\"") + context + QLatin1String("\", ");
    int callEnd = 0;
    int at = findTrCall(content, 0, &callEnd);
    if (at < 0)
        return content;
    QString result;
    result.reserve(content.size() + content.size() / 8);
    int copied = 0;
    for (; at >= 0; at = findTrCall(content, copied, &callEnd)) {
        result.append(content.constData() + copied, at + 1 - copied);
        result += call;
        copied = callEnd;
        ++*calls;
    }
    result.append(content.constData() + copied, content.size() - copied);
    return result;
}

bool isHeaderOrSource(const QFileInfo& entry)
{
    return entry.isFile() && (entry.suffix() == QLatin1String("h") || entry.suffix() == QLatin1String("cpp"));
}

} // namespace

TextFileIo::Result TrCallRewriter::rewrite(const QString& filePath) const
{
    QByteArray bytes;
    const TextFileIo::Result read = TextFileIo::readBytes(filePath, &bytes);
    if (!read.ok())
        return read;
    QString content;
    TextFileIo::Encoding encoding;
    TextFileIo::Result decoded = TextFileIo::decode(bytes, &content, &encoding);
    int calls = 0;
    const QString rewritten = rewriteCalls(content, QFileInfo(filePath).baseName(), &calls);
    if (calls == 0)
        return read; // nothing to rewrite: every byte stays
    // Writing undecodable text back would change more than the calls.
    if (!decoded.ok() || TextFileIo::encode(content, encoding) != bytes) {
        decoded.status = TextFileIo::Status::Undecodable;
        decoded.path = filePath;
        return decoded;
    }
    return TextFileIo::writeInPlace(filePath, TextFileIo::encode(rewritten, encoding));
}

QString TrCallRewriter::rewriteContent(const QString& content, const QString& context) const
{
    int calls = 0;
    return rewriteCalls(content, context, &calls);
}

int TrCallRewriter::rewriteTree(const QString& dirPath, const FileProgress& onFile, const FileDone& onDone) const
{
    if (dirPath.contains(QLatin1String("legacy")) || dirPath.contains(QLatin1String("Legacy")))
        return 0;
    int rewritten = 0;
    const QFileInfoList entries = QDir(dirPath).entryInfoList();
    for (const QFileInfo& entry : entries) {
        // A link may lead out of the tree or back up into it.
        if (entry.isSymLink())
            continue;
        if (entry.isDir()) {
            if (entry.fileName() != QLatin1String(".") && entry.fileName() != QLatin1String(".."))
                rewritten += rewriteTree(entry.filePath(), onFile, onDone);
        } else if (isHeaderOrSource(entry)) {
            if (onFile)
                onFile(entry.filePath());
            const TextFileIo::Result result = rewrite(entry.filePath());
            rewritten += result.changed ? 1 : 0;
            if (onDone)
                onDone(result);
        }
    }
    return rewritten;
}

QString TrCallRewriter::sourceRootFromEnvironment()
{
    return qEnvironmentVariable("VN_TRANSLATION_SOURCE_PATH");
}
