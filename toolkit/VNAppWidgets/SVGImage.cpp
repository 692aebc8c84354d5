#include "SVGImage.h"

#include <QCoreApplication>
#include <QFile>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextCodec>
#include <QXmlStreamReader>

namespace {
bool isTextElement(QStringView name)
{
    return name == QLatin1String("text") || name == QLatin1String("tspan");
}

QString escaped(const QString& text)
{
    return text.toHtmlEscaped();
}

// UTF-8 without NUL characters; anything else is binary data, not an SVG text.
bool decodeText(const QByteArray& data, QString* text)
{
    if (data.contains('\0'))
        return false;
    QTextCodec::ConverterState state;
    *text = QTextCodec::codecForName("UTF-8")->toUnicode(data.constData(), data.size(), &state);
    return state.invalidChars == 0;
}
} // namespace

SVGImage::SVGImage(const QString& fileName)
{
    if (!fileName.isEmpty())
        loadSVG(fileName);
}

SVGImage::~SVGImage() = default;

bool SVGImage::loadSVG(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        makeInvalid(QString(),
                    QCoreApplication::translate("SVGImage", "Cannot read %1: %2").arg(fileName, file.errorString()));
        return false;
    }
    if (file.size() > maximumSourceSize) {
        makeInvalid(QString(),
                    QCoreApplication::translate("SVGImage", "%1 is too large for an SVG image").arg(fileName));
        return false;
    }
    const QByteArray data = file.read(maximumSourceSize + 1);
    QString source;
    if (data.size() > maximumSourceSize || !decodeText(data, &source)) {
        makeInvalid(QString(), QCoreApplication::translate("SVGImage", "%1 is not an SVG text file").arg(fileName));
        return false;
    }
    QVector<TextItem> items;
    QSize size;
    QString error;
    if (!parse(source, &items, &size, &error)) {
        makeInvalid(source, error);
        return false;
    }
    m_source = source;
    m_items = items;
    m_defaultSize = size;
    m_valid = true;
    m_error.clear();
    return true;
}

bool SVGImage::setSVGSource(const QString& source)
{
    QVector<TextItem> items;
    QSize size;
    QString error;
    if (source.size() > maximumSourceSize) {
        m_error = QCoreApplication::translate("SVGImage", "The text is too large for an SVG image");
        return false;
    }
    if (!parse(source, &items, &size, &error)) {
        m_error = error;
        return false;
    }
    m_source = source;
    m_items = items;
    m_defaultSize = size;
    m_valid = true;
    m_error.clear();
    return true;
}

void SVGImage::makeInvalid(const QString& source, const QString& error)
{
    m_source = source;
    m_items.clear();
    m_defaultSize = QSize(0, 0);
    m_valid = false;
    m_error = error;
}

// Finds the text items with their raw ranges in the source, from the reader's character offsets
// before and after each token, so that a run's range covers exactly its raw text.
bool SVGImage::parse(const QString& source, QVector<TextItem>* items, QSize* defaultSize, QString* error) const
{
    QXmlStreamReader reader(source);
    QVector<bool> textElementStack;
    bool rootSeen = false;
    TextItem run;
    bool inRun = false;
    QString runText;
    auto closeRun = [&]() {
        if (inRun && !runText.trimmed().isEmpty()) {
            run.text = runText;
            run.replacement = runText;
            items->append(run);
        }
        inRun = false;
        runText.clear();
    };
    qint64 tokenBegin = 0;
    while (!reader.atEnd()) {
        tokenBegin = reader.characterOffset();
        const QXmlStreamReader::TokenType token = reader.readNext();
        switch (token) {
        case QXmlStreamReader::DTD:
            // Markup that comes out of an entity has no place of its own in the source, so text
            // items inside it could not be written back.
            for (const QXmlStreamEntityDeclaration& entity : reader.entityDeclarations()) {
                if (entity.value().contains(QLatin1Char('<'))) {
                    *error = QCoreApplication::translate("SVGImage", "Entities that contain markup are not supported");
                    return false;
                }
            }
            break;
        case QXmlStreamReader::StartElement:
            closeRun();
            if (!rootSeen && reader.name() != QLatin1String("svg")) {
                *error = QCoreApplication::translate("SVGImage", "The document is not an SVG image");
                return false;
            }
            rootSeen = true;
            textElementStack.append(isTextElement(reader.name()));
            if (textElementStack.size() > maximumNestingDepth) {
                *error = QCoreApplication::translate("SVGImage", "The elements are nested too deeply");
                return false;
            }
            break;
        case QXmlStreamReader::EndElement:
            closeRun();
            textElementStack.removeLast();
            break;
        case QXmlStreamReader::Characters:
        case QXmlStreamReader::EntityReference:
            if (!textElementStack.isEmpty() && textElementStack.last()) {
                if (!inRun) {
                    run.begin = int(tokenBegin);
                    inRun = true;
                }
                // The reader has already consumed the '<' of the markup that follows the text.
                run.end = int(reader.characterOffset());
                if (run.end > run.begin && source.at(run.end - 1) == QLatin1Char('<'))
                    --run.end;
                if (token == QXmlStreamReader::EntityReference && reader.text().isEmpty()) {
                    runText += QLatin1Char('&');
                    runText += reader.name();
                    runText += QLatin1Char(';');
                } else
                    runText += reader.text();
            }
            break;
        case QXmlStreamReader::Comment:
        case QXmlStreamReader::ProcessingInstruction:
            closeRun();
            break;
        default:
            break;
        }
    }
    if (reader.hasError()) {
        *error = reader.errorString();
        items->clear();
        return false;
    }
    if (!rootSeen) {
        *error = QCoreApplication::translate("SVGImage", "The document is empty");
        return false;
    }
    QSvgRenderer renderer(source.toUtf8());
    if (!renderer.isValid()) {
        *error = QCoreApplication::translate("SVGImage", "The SVG image cannot be drawn");
        items->clear();
        return false;
    }
    *defaultSize = renderer.defaultSize();
    return true;
}

QString SVGImage::getModifiedSource() const
{
    QString modified;
    modified.reserve(m_source.size());
    int position = 0;
    for (const TextItem& item : m_items) {
        if (!item.used)
            continue;
        modified += QStringView(m_source).mid(position, item.begin - position);
        modified += escaped(item.replacement);
        position = item.end;
    }
    modified += QStringView(m_source).mid(position);
    return modified;
}

QStringList SVGImage::getTextItems() const
{
    QStringList texts;
    texts.reserve(m_items.size());
    for (const TextItem& item : m_items)
        texts << item.text;
    return texts;
}

QString SVGImage::getModifiedTextItem(int index, bool* used) const
{
    const bool known = index >= 0 && index < m_items.size();
    if (used)
        *used = known && m_items.at(index).used;
    return known ? m_items.at(index).replacement : QString();
}

void SVGImage::setTextItem(int index, const QString& text)
{
    if (index >= 0 && index < m_items.size())
        m_items[index].replacement = text;
}

void SVGImage::setTextItemUsed(int index, bool used)
{
    if (index >= 0 && index < m_items.size())
        m_items[index].used = used;
}

QPixmap SVGImage::renderPixmap(const QSize& size) const
{
    if (!m_valid || size.isEmpty())
        return QPixmap();
    QSvgRenderer renderer(getModifiedSource().toUtf8());
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    return pixmap;
}
