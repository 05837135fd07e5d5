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

/// The first eight bytes of a name as a number that sorts like them; 0 at the end of the text,
/// where there are fewer.
quint64 startOf(QByteArrayView name, const char *end)
{
    constexpr qsizetype kSize = sizeof(quint64);
    if (end - name.data() < kSize || name.isEmpty())
        return 0;
    const auto start = qFromBigEndian<quint64>(name.data());
    return name.size() < kSize ? start & (~quint64(0) << 8 * (kSize - name.size())) : start;
}

} // namespace

/// Each function reads what stands at `at`, and gives the place behind it; null when it gives up.
///
/// The last byte is a brace, which nothing but an object takes. Hence only what ends an object or
/// looks into a string has to mind the end of the bytes.
class Q_DECL_HIDDEN VJsonText::Parser
{
public:
    Parser(QByteArrayView bytes, Tokens &tokens)
        : m_begin(bytes.begin())
        , m_end(bytes.end())
        , m_tokens(tokens)
    {
        m_tokens.resize(m_tokens.capacity());
        m_limit = quint32(m_tokens.size());
        m_token = m_tokens.data();
    }

    bool readText()
    {
        while (m_end > m_begin && isBlank(m_end[-1]))
            --m_end;
        if (m_begin == m_end || m_end[-1] != '}')
            return false;
        const char *const at = behindBlanks(m_begin);
        if (*at != '{' || readObject(at, 0) != m_end)
            return false;
        m_tokens.resize(m_count);
        return true;
    }

private:
    const char *readValue(const char *at, int depth);
    const char *readObject(const char *at, int depth);
    const char *readArray(const char *at, int depth);
    const char *readString(const char *at, Kind kind);
    Q_NEVER_INLINE const char *readOddString(const char *begin, Kind kind);
    const char *readNumber(const char *at);
    const char *readWord(const char *at, QByteArrayView word, Kind kind);
    bool hasKeyTwice(quint32 object) const;
    const char *behindPlain(const char *at) const;

    static const char *behindBlanks(const char *at)
    {
        // Compact text has none, so nothing else is compared with each of the four.
        while (uchar(*at) <= ' ' && isBlank(*at))
            ++at;
        return at;
    }
    static const char *behindDigits(const char *at)
    {
        while (isDigit(*at))
            ++at;
        return at;
    }
    quint32 placeOf(const char *at) const { return quint32(at - m_begin); }
    Q_NEVER_INLINE void makeRoom()
    {
        m_tokens.resize(2 * m_tokens.size());
        m_limit = quint32(m_tokens.size());
        m_token = m_tokens.data();
    }
    quint32 add(const Token &token)
    {
        if (m_count == m_limit)
            makeRoom();
        m_token[m_count] = token;
        return m_count++;
    }
    quint32 open(Kind kind, const char *at) { return add({placeOf(at), 0, 0, kind}); }
    void close(quint32 token, const char *end)
    {
        m_token[token].end = placeOf(end);
        m_token[token].next = m_count;
    }
    /// Adds a token without others in it.
    void addLeaf(Kind kind, const char *begin, const char *end)
    {
        add({placeOf(begin), placeOf(end), m_count + 1, kind});
    }
    QByteArrayView bytesOf(const Token &token) const
    {
        return {m_begin + token.begin, qsizetype(token.end - token.begin)};
    }

    const char *const m_begin;
    const char *m_end;
    Tokens &m_tokens;
    Token *m_token;
    quint32 m_count = 0;
    quint32 m_limit;
};

inline const char *VJsonText::Parser::readValue(const char *at, int depth)
{
    switch (*at) {
    case '{':
        return readObject(at, depth);
    case '[':
        return readArray(at, depth);
    case '"':
        return readString(at, Kind::String);
    case 't':
        return readWord(at, "true", Kind::True);
    case 'f':
        return readWord(at, "false", Kind::False);
    case 'n':
        return readWord(at, "null", Kind::Null);
    default:
        return readNumber(at);
    }
}

const char *VJsonText::Parser::readObject(const char *at, int depth)
{
    if (depth == kMaxDepth)
        return nullptr;
    const quint32 object = open(Kind::Object, at);
    at = behindBlanks(at + 1);
    bool isSorted = true;
    if (*at != '}') {
        QByteArrayView last;
        quint64 lastStart = 0;
        for (;;) {
            if (*at != '"')
                return nullptr;
            const char *const begin = at + 1;
            at = readString(at, Kind::Key);
            if (at == nullptr)
                return nullptr;
            const QByteArrayView name(begin, at - 1);
            const quint64 start = startOf(name, m_end);
            isSorted =
                isSorted && (lastStart < start || (lastStart == start && last.compare(name) < 0));
            last = name;
            lastStart = start;
            at = behindBlanks(at);
            if (*at != ':')
                return nullptr;
            at = readValue(behindBlanks(at + 1), depth + 1);
            if (at == nullptr)
                return nullptr;
            at = behindBlanks(at);
            if (*at != ',')
                break;
            at = behindBlanks(at + 1);
        }
        if (*at != '}')
            return nullptr;
    }
    ++at;
    close(object, at);
    const bool isEnd = at == m_end;
    return isEnd == (depth == 0) && (isSorted || !hasKeyTwice(object)) ? at : nullptr;
}

const char *VJsonText::Parser::readArray(const char *at, int depth)
{
    if (depth == kMaxDepth)
        return nullptr;
    const quint32 array = open(Kind::Array, at);
    at = behindBlanks(at + 1);
    if (*at != ']') {
        for (;;) {
            at = readValue(at, depth + 1);
            if (at == nullptr)
                return nullptr;
            at = behindBlanks(at);
            if (*at != ',')
                break;
            at = behindBlanks(at + 1);
        }
        if (*at != ']')
            return nullptr;
    }
    close(array, at + 1);
    return at + 1;
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

inline const char *VJsonText::Parser::readString(const char *at, Kind kind)
{
    const char *const begin = at + 1;
    if (m_end - begin >= kBlock) {
        const qsizetype length = plainLength(begin);
        if (length < kBlock && begin[length] == '"') {
            addLeaf(kind, begin, begin + length);
            return begin + length + 1;
        }
    }
    return readOddString(begin, kind);
}

/// Reads what is not a short string of plain bytes.
const char *VJsonText::Parser::readOddString(const char *begin, Kind kind)
{
    const char *at = behindPlain(begin);
    while (at < m_end && uchar(*at) >= 0x80) {
        const qsizetype length = sequenceLength(at, m_end);
        // QJsonDocument drops a byte order mark at the start of a string.
        if (length == 0
            || (at == begin && QByteArrayView(at, length) == QByteArrayView("\xef\xbb\xbf")))
            return nullptr;
        at = behindPlain(at + length);
    }
    if (at == m_end || *at != '"')
        return nullptr; // An escape or a control character stands here otherwise.
    addLeaf(kind, begin, at);
    return at + 1;
}

const char *VJsonText::Parser::readNumber(const char *at)
{
    const char *const begin = at;
    const char *const first = *at == '-' ? at + 1 : at;
    at = behindDigits(first);
    const qsizetype wholeDigits = at - first;
    if (wholeDigits == 0 || wholeDigits > kMaxWholeDigits || (*first == '0' && wholeDigits > 1))
        return nullptr;
    qsizetype fractionDigits = 0;
    if (*at == '.') {
        const char *const fraction = at + 1;
        at = behindDigits(fraction);
        fractionDigits = at - fraction;
        if (fractionDigits == 0)
            return nullptr;
    }
    // The zero before the point is no digit that counts.
    const qsizetype digits = (*first == '0' ? 0 : wholeDigits) + fractionDigits;
    addLeaf(Kind::Number, begin, at);
    return digits <= kMaxDigits && *at != 'e' && *at != 'E' ? at : nullptr;
}

const char *VJsonText::Parser::readWord(const char *at, QByteArrayView word, Kind kind)
{
    if (m_end - at < word.size() || std::memcmp(at, word.data(), std::size_t(word.size())) != 0)
        return nullptr;
    addLeaf(kind, at, at + word.size());
    return at + word.size();
}

/// Whether a name comes twice in an object whose names are not sorted.
bool VJsonText::Parser::hasKeyTwice(quint32 object) const
{
    quint32 count = 0;
    for (quint32 key = object + 1; key < m_count; key = m_token[key + 1].next) {
        if (++count > kMaxUnsortedKeys)
            return true;
        const QByteArrayView name = bytesOf(m_token[key]);
        for (quint32 other = object + 1; other < key; other = m_token[other + 1].next) {
            if (bytesOf(m_token[other]) == name)
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
