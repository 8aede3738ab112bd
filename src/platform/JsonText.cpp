#include "JsonText.h"

#include <QHash>
#include <QString>
#include <QVector>

#include <algorithm>
#include <cstring>

namespace {

// Qt's own nesting limit.
constexpr int kMaxDepth = 1024;

// A validating pass over JSON text that notes, per object, where each member starts, and the byte
// ranges of members that a later member with the same key replaces.
class Scanner {
public:
    explicit Scanner(const QByteArray& text) : m_text(text), m_at(0) {}

    bool scan()
    {
        // Qt skips a UTF-8 byte order mark before the value.
        if (m_text.startsWith("\xEF\xBB\xBF"))
            m_at = 3;
        skipSpace();
        if (!value(0))
            return false;
        skipSpace();
        m_complete = true;
        return m_at == m_text.size();
    }

    // Where the scan stopped, and whether it stopped after a whole value (text follows it).
    int position() const { return m_at; }
    bool complete() const { return m_complete; }
    bool tooDeep() const { return m_tooDeep; }

    // Replaced members as [begin, end) ranges, outermost first where they nest.
    QVector<QPair<int, int>> cuts() const { return m_cuts; }

private:
    char peek() const { return m_at < m_text.size() ? m_text.at(m_at) : '\0'; }

    void skipSpace()
    {
        while (m_at < m_text.size()) {
            const char c = m_text.at(m_at);
            if (c != ' ' && c != '\t' && c != '\n' && c != '\r')
                return;
            ++m_at;
        }
    }

    bool literal(const char* word)
    {
        const int length = int(qstrlen(word));
        if (m_text.mid(m_at, length) != word)
            return false;
        m_at += length;
        return true;
    }

    bool number()
    {
        const int start = m_at;
        while (m_at < m_text.size() && std::strchr("0123456789+-.eE", m_text.at(m_at)) != nullptr && m_text.at(m_at) != '\0')
            ++m_at;
        return m_at > start;
    }

    static int hexValue(char c)
    {
        if (c >= '0' && c <= '9')
            return c - '0';
        if (c >= 'a' && c <= 'f')
            return c - 'a' + 10;
        if (c >= 'A' && c <= 'F')
            return c - 'A' + 10;
        return -1;
    }

    // A string at m_at; its unescaped text into `decoded` when given.
    bool string(QString* decoded)
    {
        if (peek() != '"')
            return false;
        ++m_at;
        QByteArray raw;
        while (m_at < m_text.size()) {
            const char c = m_text.at(m_at++);
            if (c == '"') {
                if (decoded)
                    decoded->append(QString::fromUtf8(raw));
                return true;
            }
            // Raw control characters are let through as Qt's parser lets them through: a stricter
            // scan would stop early and leave the repeats after them to Qt.
            if (c != '\\') {
                raw.append(c);
                continue;
            }
            if (m_at >= m_text.size())
                return false;
            const char escape = m_text.at(m_at++);
            if (escape == 'u') {
                int unit = 0;
                for (int i = 0; i < 4; ++i) {
                    const int digit = m_at < m_text.size() ? hexValue(m_text.at(m_at++)) : -1;
                    if (digit < 0)
                        return false;
                    unit = unit * 16 + digit;
                }
                if (decoded) {
                    decoded->append(QString::fromUtf8(raw));
                    raw.clear();
                    decoded->append(QChar(unit));
                }
                continue;
            }
            // Qt takes an unknown escape as the character itself; so does the scan.
            static const char kSimple[] = "\"\\/bfnrt";
            const char* found = escape == '\0' ? nullptr : std::strchr(kSimple, escape);
            raw.append(found ? "\"\\/\b\f\n\r\t"[found - kSimple] : escape);
        }
        return false;
    }

    bool value(int depth)
    {
        switch (peek()) {
        case '{':
            return object(depth + 1);
        case '[':
            return array(depth + 1);
        case '"':
            return string(nullptr);
        case 't':
            return literal("true");
        case 'f':
            return literal("false");
        case 'n':
            return literal("null");
        default:
            return number();
        }
    }

    bool array(int depth)
    {
        if (depth > kMaxDepth) {
            m_tooDeep = true;
            return false;
        }
        ++m_at; // '['
        skipSpace();
        if (peek() == ']') {
            ++m_at;
            return true;
        }
        for (;;) {
            skipSpace();
            if (!value(depth))
                return false;
            skipSpace();
            if (peek() == ']') {
                ++m_at;
                return true;
            }
            if (peek() != ',')
                return false;
            ++m_at;
        }
    }

    bool object(int depth)
    {
        if (depth > kMaxDepth) {
            m_tooDeep = true;
            return false;
        }
        ++m_at; // '{'
        skipSpace();
        if (peek() == '}') {
            ++m_at;
            return true;
        }
        QVector<int> starts;          // where each member's key begins
        QHash<QString, int> lastIndex; // key -> index of its latest member
        for (;;) {
            skipSpace();
            const int start = m_at;
            QString key;
            if (!string(&key))
                return false;
            starts.append(start);
            const auto earlier = lastIndex.constFind(key);
            if (earlier != lastIndex.constEnd()) {
                // The earlier member reaches up to the key of the member after it.
                const int index = earlier.value();
                m_cuts.append({starts.at(index), starts.at(index + 1)});
            }
            lastIndex.insert(key, starts.size() - 1);
            skipSpace();
            if (peek() != ':')
                return false;
            ++m_at;
            skipSpace();
            if (!value(depth))
                return false;
            skipSpace();
            if (peek() == '}') {
                ++m_at;
                return true;
            }
            if (peek() != ',')
                return false;
            ++m_at;
        }
    }

    const QByteArray& m_text;
    int m_at;
    bool m_complete = false;
    bool m_tooDeep = false;
    QVector<QPair<int, int>> m_cuts;
};

QByteArray cutOut(const QByteArray& text, QVector<QPair<int, int>> cuts)
{
    if (cuts.isEmpty())
        return text;
    std::sort(cuts.begin(), cuts.end());
    QByteArray kept;
    kept.reserve(text.size());
    int at = 0;
    for (const auto& [begin, end] : cuts) {
        if (begin < at) // inside a member already taken out
            continue;
        kept.append(text.constData() + at, begin - at);
        at = end;
    }
    kept.append(text.constData() + at, text.size() - at);
    return kept;
}

} // namespace

namespace JsonText {

QByteArray withoutRepeatedKeys(const QByteArray& text)
{
    if (!text.contains('{'))
        return text;
    Scanner scanner(text);
    scanner.scan();
    return cutOut(text, scanner.cuts());
}

QJsonDocument parse(const QByteArray& text, QJsonParseError* error)
{
    Scanner scanner(text);
    if (!scanner.scan()) {
        // Text that is not JSON never reaches Qt: on some broken texts its parser reads on past
        // where a strict reading stops and leaks what it built before it gives up.
        if (error) {
            error->offset = scanner.position();
            error->error = scanner.tooDeep() ? QJsonParseError::DeepNesting
                    : scanner.complete()     ? QJsonParseError::GarbageAtEnd
                                             : QJsonParseError::IllegalValue;
        }
        return {};
    }
    return QJsonDocument::fromJson(cutOut(text, scanner.cuts()), error);
}

} // namespace JsonText
