// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// Takes the structure of JSON text. Where anything is out of the ordinary it gives up: it must
// never accept what QJsonDocument refuses, or read it otherwise.

#include <vcore/VJsonText.h>

#include <QtCore/QtEndian>

#include <array>
#include <bit>
#include <cstring>
#include <limits>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace Norvane {

namespace {

/// Deeper text is for QJsonDocument, which does not run out of stack.
constexpr int kMaxDepth = 32;
/// A double holds each whole number of so many digits.
constexpr qsizetype kMaxWholeDigits = 15;
/// So many digits tell any two doubles apart: none is written with more.
constexpr qsizetype kMaxDigits = 17;
/// Beyond so many unsorted keys, looking for doubles costs more than the tree.
constexpr quint32 kMaxUnsortedKeys = 64;

constexpr bool isBlank(char c)
{
    return c == ' ' || c == '\n' || c == '\t' || c == '\r';
}

constexpr bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Which bytes a string may hold without a closer look.
constexpr auto kPlain = [] {
    std::array<bool, 256> plain{};
    for (int byte = 0x20; byte < 0x80; ++byte)
        plain[std::size_t(byte)] = byte != '"' && byte != '\\';
    return plain;
}();

#ifdef __SSE2__
/// Two registers: most strings end in their first block.
constexpr qsizetype kBlock = 32;

/// A bit for each of 16 bytes that is not plain.
quint32 notPlain(const char *at)
{
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i *>(at));
    // As signed numbers, bytes outside ASCII are below the blank, too.
    const __m128i isOdd = _mm_cmplt_epi8(bytes, _mm_set1_epi8(' '));
    const __m128i isSpecial = _mm_or_si128(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('"')),
                                           _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\\')));
    return quint32(_mm_movemask_epi8(_mm_or_si128(isOdd, isSpecial)));
}

/// How many of the first kBlock bytes are plain.
qsizetype plainLength(const char *block)
{
    return std::countr_zero(notPlain(block) | notPlain(block + kBlock / 2) << kBlock / 2);
}
#else
constexpr qsizetype kBlock = 8;

/// How many of the first kBlock bytes are plain.
qsizetype plainLength(const char *block)
{
    constexpr quint64 kEach = 0x0101010101010101;
    constexpr quint64 kHighBits = 0x80 * kEach;
    const auto bytes = qFromLittleEndian<quint64>(block);
    const auto isZero = [](quint64 each) { return (each - kEach) & ~each; };
    const quint64 isControl = (bytes - ' ' * kEach) & ~bytes;
    // The lowest high bit that is set is that of the first byte which is not plain; carries may set
    // others above it.
    const quint64 found =
        (bytes | isControl | isZero(bytes ^ '"' * kEach) | isZero(bytes ^ '\\' * kEach))
        & kHighBits;
    return std::countr_zero(found) / 8;
}
#endif

/// The length of the UTF-8 sequence of two to four bytes at `at`; 0 when it is malformed.
qsizetype sequenceLength(const char *at, const char *end)
{
    const auto byte = [at](int i) { return uchar(at[i]); };
    const auto continues = [&](int i) { return (byte(i) & 0xC0) == 0x80; };
    const qsizetype left = end - at;
    if (byte(0) >= 0xC2 && byte(0) <= 0xDF)
        return left >= 2 && continues(1) ? 2 : 0;
    if (byte(0) >= 0xE0 && byte(0) <= 0xEF) {
        const bool isShort = byte(0) == 0xE0 && left >= 2 && byte(1) < 0xA0;
        const bool isSurrogate = byte(0) == 0xED && left >= 2 && byte(1) > 0x9F;
        return left >= 3 && continues(1) && continues(2) && !isShort && !isSurrogate ? 3 : 0;
    }
    if (byte(0) >= 0xF0 && byte(0) <= 0xF4) {
        const bool isShort = byte(0) == 0xF0 && left >= 2 && byte(1) < 0x90;
        const bool isTooLarge = byte(0) == 0xF4 && left >= 2 && byte(1) > 0x8F;
        const bool isWhole = left >= 4 && continues(1) && continues(2) && continues(3);
        return isWhole && !isShort && !isTooLarge ? 4 : 0;
    }
    return 0;
}

/// Whether `a` sorts before `b`. Mostly their first bytes tell.
bool isBefore(QByteArrayView a, QByteArrayView b)
{
    if (!a.isEmpty() && !b.isEmpty() && a[0] != b[0])
        return uchar(a[0]) < uchar(b[0]);
    return a.compare(b) < 0;
}

} // namespace

class Q_DECL_HIDDEN VJsonText::Parser
{
public:
    Parser(QByteArrayView bytes, Tokens &tokens)
        : m_begin(bytes.begin())
        , m_at(bytes.begin())
        , m_end(bytes.end())
        , m_tokens(tokens)
    { }

    bool readText()
    {
        skipBlanks();
        if (peek() != '{' || !readValue(0))
            return false;
        skipBlanks();
        return m_at == m_end;
    }

private:
    bool readValue(int depth);
    bool readObject(int depth);
    bool readArray(int depth);
    bool readString(Kind kind);
    bool readNumber();
    bool readWord(const char *word, Kind kind);
    bool hasKeyTwice(quint32 object) const;
    const char *behindPlain(const char *at) const;

    char peek() const { return m_at < m_end ? *m_at : '\0'; }
    void skipBlanks()
    {
        // Compact text has none, so nothing else is compared with each of the four.
        while (m_at < m_end && uchar(*m_at) <= ' ' && isBlank(*m_at))
            ++m_at;
    }
    bool take(char c)
    {
        if (peek() != c)
            return false;
        ++m_at;
        return true;
    }
    quint32 here() const { return quint32(m_at - m_begin); }
    quint32 open(Kind kind)
    {
        m_tokens.append({here(), 0, 0, kind});
        return quint32(m_tokens.size() - 1);
    }
    void close(quint32 token)
    {
        m_tokens[token].end = here();
        m_tokens[token].next = quint32(m_tokens.size());
    }
    /// Adds a token without others in it, which ends here.
    void addLeaf(Kind kind, quint32 begin)
    {
        m_tokens.append({begin, here(), quint32(m_tokens.size() + 1), kind});
    }
    QByteArrayView bytesOf(const Token &token) const
    {
        return {m_begin + token.begin, qsizetype(token.end - token.begin)};
    }

    const char *const m_begin;
    const char *m_at;
    const char *const m_end;
    Tokens &m_tokens;
};

bool VJsonText::Parser::readValue(int depth)
{
    switch (peek()) {
    case '{':
        return readObject(depth);
    case '[':
        return readArray(depth);
    case '"':
        return readString(Kind::String);
    case 't':
        return readWord("true", Kind::True);
    case 'f':
        return readWord("false", Kind::False);
    case 'n':
        return readWord("null", Kind::Null);
    default:
        return readNumber();
    }
}

bool VJsonText::Parser::readObject(int depth)
{
    if (depth == kMaxDepth)
        return false;
    const quint32 object = open(Kind::Object);
    ++m_at;
    skipBlanks();
    if (!take('}')) {
        do {
            skipBlanks();
            if (peek() != '"' || !readString(Kind::Key))
                return false;
            skipBlanks();
            if (!take(':'))
                return false;
            skipBlanks();
            if (!readValue(depth + 1))
                return false;
            skipBlanks();
        } while (take(','));
        if (!take('}'))
            return false;
    }
    close(object);
    return !hasKeyTwice(object);
}

bool VJsonText::Parser::readArray(int depth)
{
    if (depth == kMaxDepth)
        return false;
    const quint32 array = open(Kind::Array);
    ++m_at;
    skipBlanks();
    if (!take(']')) {
        do {
            skipBlanks();
            if (!readValue(depth + 1))
                return false;
            skipBlanks();
        } while (take(','));
        if (!take(']'))
            return false;
    }
    close(array);
    return true;
}

/// Behind the plain bytes at `at`.
inline const char *VJsonText::Parser::behindPlain(const char *at) const
{
    while (m_end - at >= kBlock) {
        const qsizetype length = plainLength(at);
        at += length;
        if (length < kBlock)
            return at;
    }
    while (at < m_end && kPlain[uchar(*at)])
        ++at;
    return at;
}

bool VJsonText::Parser::readString(Kind kind)
{
    const char *const begin = m_at + 1;
    const char *at = behindPlain(begin);
    while (at < m_end && uchar(*at) >= 0x80) {
        const qsizetype length = sequenceLength(at, m_end);
        // QJsonDocument drops a byte order mark at the start of a string.
        if (length == 0
            || (at == begin && QByteArrayView(at, length) == QByteArrayView("\xef\xbb\xbf")))
            return false;
        at = behindPlain(at + length);
    }
    m_at = at;
    addLeaf(kind, quint32(begin - m_begin));
    return take('"'); // An escape or a control character stands here otherwise.
}

bool VJsonText::Parser::readNumber()
{
    const quint32 begin = here();
    take('-');
    const char *const first = m_at;
    while (isDigit(peek()))
        ++m_at;
    const qsizetype wholeDigits = m_at - first;
    if (wholeDigits == 0 || wholeDigits > kMaxWholeDigits || (*first == '0' && wholeDigits > 1))
        return false;
    qsizetype fractionDigits = 0;
    if (take('.')) {
        const char *const fraction = m_at;
        while (isDigit(peek()))
            ++m_at;
        fractionDigits = m_at - fraction;
        if (fractionDigits == 0)
            return false;
    }
    // The zero before the point is no digit that counts.
    const qsizetype digits = (*first == '0' ? 0 : wholeDigits) + fractionDigits;
    addLeaf(Kind::Number, begin);
    return digits <= kMaxDigits && peek() != 'e' && peek() != 'E';
}

bool VJsonText::Parser::readWord(const char *word, Kind kind)
{
    const quint32 begin = here();
    const auto length = qsizetype(std::strlen(word));
    if (m_end - m_at < length || std::memcmp(m_at, word, std::size_t(length)) != 0)
        return false;
    m_at += length;
    addLeaf(kind, begin);
    return true;
}

bool VJsonText::Parser::hasKeyTwice(quint32 object) const
{
    // Written by a QJsonObject, keys are sorted: each needs comparing with the one before it only.
    const quint32 end = quint32(m_tokens.size());
    quint32 count = 0;
    bool isSorted = true;
    QByteArrayView last;
    for (quint32 key = object + 1; key < end; key = m_tokens[key + 1].next) {
        const QByteArrayView name = bytesOf(m_tokens[key]);
        isSorted = isSorted && (count == 0 || isBefore(last, name));
        last = name;
        ++count;
    }
    if (isSorted)
        return false;
    if (count > kMaxUnsortedKeys)
        return true;
    for (quint32 key = object + 1; key < end; key = m_tokens[key + 1].next) {
        const QByteArrayView name = bytesOf(m_tokens[key]);
        for (quint32 other = m_tokens[key + 1].next; other < end;
             other = m_tokens[other + 1].next) {
            if (bytesOf(m_tokens[other]) == name)
                return true;
        }
    }
    return false;
}

bool VJsonText::parse(QByteArrayView bytes)
{
    m_bytes = bytes.data();
    m_tokens.clear();
    // Places are kept in 32 bits.
    if (bytes.size() < qsizetype(std::numeric_limits<quint32>::max())
        && Parser(bytes, m_tokens).readText())
        return true;
    m_tokens.clear();
    return false;
}

} // namespace Norvane
