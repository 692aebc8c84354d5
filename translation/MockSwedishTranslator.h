#pragma once

#include <QString>

#include <string>
#include <string_view>

/*
  Mock Swedish: the English source text of a translation made to look foreign ("Open file" becomes
  "üØpee ffeele-æ"), so that a running UI shows at a glance which of its texts are translated and
  which are hard-coded.

  One table of rules, applied in order, serves UTF-16 text and UTF-8 bytes alike: every pattern is
  ASCII, and an ASCII code unit is a whole character in both encodings, so replacing code units
  replaces the same characters. Setting a first or last code unit aside instead of a whole
  character changes nothing either, since no pattern contains a part of another character.

  An object keeps its working memory from one text to the next.
*/
class MockSwedishTranslator
{
public:
    QString translate(const QString& source);
    // The same for valid UTF-8 text, without decoding it; valid until the next call.
    std::string_view translateUtf8(std::string_view source);

private:
    std::u16string m_utf16;
    std::u16string m_utf16Scratch;
    std::string m_utf8;
    std::string m_utf8Scratch;
};
