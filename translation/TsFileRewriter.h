#pragma once

#include "GatheredBytes.h"
#include "TextFileIo.h"

#include <QByteArray>
#include <QString>

/*
  Rewrites the translations of a Qt Linguist translation file (.ts) into a file beside it: repairs
  their tags (".fix") or fills them with mock Swedish (".swe").

  Each entry is rewritten as one match of the minimal QRegExp
      (<source>(.*)</source>.*<translation)([^>]*)>(.*)</translation>
  replaced in place would be, but the work takes time proportional to the file size, also on
  malformed files (for example many <source> entries without a closing </translation>) and on one
  huge text.

  The literal rule replaces a whole translation with one text, which Qt's tools refuse for a
  numerus message (<message numerus="yes">): they want its <numerusform> children. With the forms
  kept, mock Swedish fills every <numerusform> of a numerus message with the mock text (writing one
  when the message has none) and every <lengthvariant> of a translation or a form likewise (a
  translation that keeps length variants says variants="yes", as the format wants); all other
  bytes stay what the literal rule writes.

  A .ts file in UTF-8 without a byte-order mark, the usual case, is never decoded: it is mapped into
  memory and processed as bytes, and its output refers to the unchanged runs of the input instead of
  copying them. Other encodings are decoded, and the output keeps the encoding of its input.
*/
class TsFileRewriter
{
public:
    // A fixed type, so that an unknown mode can be asked for and refused.
    enum Mode : int
    {
        FixTags = 0,    // output suffix ".fix"
        MockSwedish = 1 // output suffix ".swe"
    };
    // What mock Swedish makes of the numerus and length-variant forms of a translation.
    enum class Forms
    {
        Flatten, // one text for the whole translation, the literal rule
        Keep     // one text per form, which lrelease accepts
    };

    // Writes filePath + ".fix" or ".swe"; fails when the input is empty, unreadable or
    // undecodable, the mode is unknown or the output cannot be written completely (an earlier
    // output is then kept as it was).
    TextFileIo::Result process(const QString& filePath, Mode mode, Forms forms = Forms::Flatten) const;

    // The text process() writes for the given content; an unknown mode returns the content.
    QString processContent(const QString& content, Mode mode, Forms forms = Forms::Flatten) const;
    // The same for valid UTF-8 content, without decoding it.
    QByteArray processUtf8(const QByteArray& content, Mode mode, Forms forms = Forms::Flatten) const;

    // True when the text is empty or whitespace only.
    static bool isBlank(const QString& text);

private:
    static bool isKnown(Mode mode);
    static QString outputSuffix(Mode mode);
    // The output for the bytes of a .ts file (which may be changed), referring to them.
    TextFileIo::Result convert(QByteArray& bytes, Mode mode, Forms forms, GatheredBytes* output) const;
};
