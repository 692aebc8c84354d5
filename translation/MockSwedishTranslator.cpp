#include "MockSwedishTranslator.h"

#include <algorithm>
#include <vector>

namespace {

// What a rule does to the working text; the source is the text as it came in.
enum class Action
{
    KeepSourceIfItContains, // in any letter case: the translation is the source itself
    Replace,                // every occurrence, left to right
    ReplaceButFirst,        // the same with the first character set aside
    ReplaceButLast,         // the same with the last character set aside
    ReplaceFirstIfSourceStarts,
    DropLastIfSourceEnds,
    AppendIfEnds,
    Prepend
};

struct Rule
{
    Action action;
    const char* pattern; // ASCII
    const char* text;    // UTF-8
};

// The mock Swedish, rule after rule.
const Rule rules[] = {
    {Action::KeepSourceIfItContains, "html", ""},
    // Entities are shielded from the letter rules; "&lt;" is not, on purpose: its letters change.
    {Action::Replace, "&quot;", "##1##"},
    {Action::Replace, "&apos;", "##2##"},
    {Action::Replace, "&amp;", "##3##"},
    {Action::Replace, "&gt;", "##4##"},
    {Action::Replace, "An", "Ån"},
    {Action::Replace, "an", "ån"},
    {Action::Replace, "Au", "Oo"},
    {Action::Replace, "au", "oo"},
    {Action::ReplaceButLast, "A", "E"},
    {Action::ReplaceButLast, "a", "e"},
    {Action::Replace, "En", "Ee"},
    {Action::Replace, "en", "ee"},
    {Action::ReplaceButFirst, "ew", "oo"},
    {Action::ReplaceButFirst, "f", "ff"},
    {Action::ReplaceButFirst, "ir", "ur"},
    {Action::ReplaceButFirst, "tion", "shun"},
    {Action::ReplaceButFirst, "i", "ee"},
    {Action::ReplaceButFirst, "ow", "oo"},
    {Action::ReplaceFirstIfSourceStarts, "O", "Ø"},
    {Action::ReplaceFirstIfSourceStarts, "o", "ø"},
    {Action::DropLastIfSourceEnds, "th", ""},
    {Action::ReplaceButFirst, "u", "oo"},
    // In this order a 'W' of the source ends as 'V', not as 'F'.
    {Action::Replace, "V", "F"},
    {Action::Replace, "v", "f"},
    {Action::Replace, "W", "V"},
    {Action::Replace, "w", "v"},
    {Action::AppendIfEnds, "e", "-æ"},
    {Action::Replace, "##1##", "&quot;"},
    {Action::Replace, "##2##", "&apos;"},
    {Action::Replace, "##3##", "&amp;"},
    {Action::Replace, "##4##", "&gt;"},
    {Action::Prepend, "", "ü"},
};

template<typename Unit>
using Text = std::basic_string<Unit>;
template<typename Unit>
using View = std::basic_string_view<Unit>;

template<typename Unit>
struct EncodedRule
{
    Action action;
    Text<Unit> pattern;
    Text<Unit> text;
};

Text<char> encode(const char* utf8, char)
{
    return utf8;
}

Text<char16_t> encode(const char* utf8, char16_t)
{
    return QString::fromUtf8(utf8).toStdU16String();
}

// The rule table in the code units of one encoding, made once.
template<typename Unit>
const std::vector<EncodedRule<Unit>>& encodedRules()
{
    static const std::vector<EncodedRule<Unit>> encoded = [] {
        std::vector<EncodedRule<Unit>> list;
        for (const Rule& rule : rules)
            list.push_back({rule.action, encode(rule.pattern, Unit()), encode(rule.text, Unit())});
        return list;
    }();
    return encoded;
}

template<typename Unit>
bool startsWith(View<Unit> text, View<Unit> start)
{
    return text.substr(0, start.size()) == start;
}

template<typename Unit>
bool endsWith(View<Unit> text, View<Unit> end)
{
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

// No character outside ASCII folds to an ASCII letter, so ASCII folding is every folding here.
template<typename Unit>
bool containsInAnyCase(View<Unit> text, View<Unit> lowerCasePattern)
{
    const auto sameLetter = [](Unit unit, Unit lower) {
        return unit == lower || (unit >= 'A' && unit <= 'Z' && Unit(unit - 'A' + 'a') == lower);
    };
    for (size_t at = 0; at + lowerCasePattern.size() <= text.size(); ++at) {
        size_t matched = 0;
        while (matched < lowerCasePattern.size() && sameLetter(text[at + matched], lowerCasePattern[matched]))
            ++matched;
        if (matched == lowerCasePattern.size())
            return true;
    }
    return false;
}

// The first occurrence of a short pattern at or after from: the first unit is looked for with the
// library's fast search, the few others compared in place.
template<typename Unit>
size_t findPattern(View<Unit> text, View<Unit> pattern, size_t from)
{
    if (text.size() < pattern.size())
        return View<Unit>::npos;
    const size_t last = text.size() - pattern.size();
    for (size_t at = from; at <= last; ++at) {
        const Unit* hit = std::char_traits<Unit>::find(text.data() + at, last - at + 1, pattern.front());
        if (!hit)
            break;
        at = size_t(hit - text.data());
        size_t matched = 1;
        while (matched < pattern.size() && text[at + matched] == pattern[matched])
            ++matched;
        if (matched == pattern.size())
            return at;
    }
    return View<Unit>::npos;
}

// Runs the rules over one text, in the working memory it is given.
template<typename Unit>
class RuleRunner
{
public:
    RuleRunner(Text<Unit>& text, Text<Unit>& scratch)
        : m_text(text)
        , m_scratch(scratch)
    {}

    View<Unit> run(View<Unit> source)
    {
        m_text.assign(source);
        if (source.empty())
            return m_text; // no first or last character to set aside
        for (const EncodedRule<Unit>& rule : encodedRules<Unit>()) {
            if (!apply(rule, source))
                break;
        }
        return m_text;
    }

private:
    // False when the text is final.
    bool apply(const EncodedRule<Unit>& rule, View<Unit> source)
    {
        const View<Unit> pattern(rule.pattern);
        switch (rule.action) {
        case Action::KeepSourceIfItContains:
            return !containsInAnyCase(source, pattern);
        case Action::Replace:
            replaceAll(pattern, rule.text, 0, m_text.size());
            break;
        case Action::ReplaceButFirst:
            replaceAll(pattern, rule.text, 1, m_text.size());
            break;
        case Action::ReplaceButLast:
            replaceAll(pattern, rule.text, 0, m_text.size() - 1);
            break;
        case Action::ReplaceFirstIfSourceStarts:
            if (startsWith(source, pattern))
                m_text.replace(0, 1, rule.text);
            break;
        case Action::DropLastIfSourceEnds:
            if (endsWith(source, pattern))
                m_text.pop_back();
            break;
        case Action::AppendIfEnds:
            if (endsWith(View<Unit>(m_text), pattern))
                m_text += rule.text;
            break;
        case Action::Prepend:
            m_text.insert(0, rule.text);
            break;
        }
        return true;
    }

    // Replaces, left to right, every occurrence of pattern that lies within [from, to).
    void replaceAll(View<Unit> pattern, const Text<Unit>& replacement, size_t from, size_t to)
    {
        const View<Unit> text(m_text);
        const auto next = [&](size_t at) {
            const size_t found = findPattern(text, pattern, at);
            return found != View<Unit>::npos && found + pattern.size() <= to ? found : View<Unit>::npos;
        };
        size_t at = next(from);
        if (at == View<Unit>::npos)
            return;
        if (pattern.size() == replacement.size()) {
            // In place: what follows a replacement is not looked at before it is reached.
            for (; at != View<Unit>::npos; at = next(at + pattern.size()))
                std::copy(replacement.begin(), replacement.end(), m_text.begin() + ptrdiff_t(at));
            return;
        }
        m_scratch.assign(text.substr(0, at));
        size_t copied = at;
        for (; at != View<Unit>::npos; at = next(copied)) {
            m_scratch.append(text.substr(copied, at - copied));
            m_scratch.append(replacement);
            copied = at + pattern.size();
        }
        m_scratch.append(text.substr(copied));
        m_text.swap(m_scratch);
    }

    Text<Unit>& m_text;
    Text<Unit>& m_scratch;
};

} // namespace

QString MockSwedishTranslator::translate(const QString& source)
{
    const View<char16_t> utf16(reinterpret_cast<const char16_t*>(source.utf16()), size_t(source.size()));
    const View<char16_t> translation = RuleRunner<char16_t>(m_utf16, m_utf16Scratch).run(utf16);
    return QString(reinterpret_cast<const QChar*>(translation.data()), int(translation.size()));
}

std::string_view MockSwedishTranslator::translateUtf8(std::string_view source)
{
    return RuleRunner<char>(m_utf8, m_utf8Scratch).run(source);
}
