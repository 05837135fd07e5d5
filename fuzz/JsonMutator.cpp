// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// Changes JSON by its values and keys, so that most of what comes out is JSON still: bytes changed
// at random would hardly get past the parser. Spellings of the rest of the text are left as they
// are, odd ones included.

#include "Fuzz.h"

#include <QtCore/QByteArrayView>
#include <QtCore/QList>

#include <algorithm>
#include <cstring>
#include <random>

extern "C" size_t LLVMFuzzerMutate(uint8_t *data, size_t size, size_t maxSize);

namespace {

using Random = std::minstd_rand;

/// A value, or a member of an object with its key.
struct Span
{
    qsizetype begin = 0;
    qsizetype size = 0;
};

/// What values and members are replaced by: each is odd in its own way.
const QByteArrayView kValues[] = {"null",
                                  "true",
                                  "false",
                                  "{}",
                                  "[]",
                                  "\"\"",
                                  "0",
                                  "-0",
                                  "-0.0",
                                  "1e2",
                                  "4.0",
                                  "4.5",
                                  ".5",
                                  "1.",
                                  "01",
                                  "1e999",
                                  "-1e-999",
                                  "2147483648",
                                  "-2147483649",
                                  "9007199254740993",
                                  "1E+2",
                                  "0.1e1",
                                  "\"\\u0000\"",
                                  "\"\\ud800\"",
                                  "\"\\udc00\\ud800\"",
                                  "\"\\ud83c\\udfed\"",
                                  "\"\\x41\"",
                                  "\"\\/\"",
                                  "\"\xef\xbb\xbf\"",
                                  "\"\x7f\"",
                                  "\"\xc3\"",
                                  "\"\xed\xa0\x80\"",
                                  "\"\xf4\x90\x80\x80\"",
                                  "\"a\tb\"",
                                  "\"None\"",
                                  "\"Cyan\"",
                                  "\"Rle, Lzw\"",
                                  "\" Rle ,Lzw,\"",
                                  "\"inkjet\"",
                                  "\"1.0.0\"",
                                  "\"1.1.0\"",
                                  "\"01.2.1\"",
                                  "\"1.2.1.4\"",
                                  "\"256.1.1\"",
                                  "\"2026-11-21T09:30:00.000Z\"",
                                  "\"9999-12-31T23:59:59.999-14:00\"",
                                  "\"2026-11-21T24:00:00\"",
                                  "\"2026-11-21\"",
                                  "\"0000-01-01T00:00:00+14:00\"",
                                  "\"{00000000-0000-0000-0000-000000000000}\"",
                                  "\"06b1a6eb-628e-45e5-8d80-eb92a4f22e4e\"",
                                  "\"{06B1A6EB-628E-45E5-8D80-EB92A4F22E4E}\"",
                                  "\"{488e105b-5aac-427d-92d3-1de3f94f8c7f}\"",
                                  "\"{8f5c90c1-c516-487b-bd10-603583444346}\"",
                                  "\"{11111111-2222-3333-4444-555555555555}\"",
                                  "\"9223372036854775808\"",
                                  "\"-9223372036854775808\"",
                                  "\"18446744073709551615\"",
                                  "\" 12\"",
                                  "\"+12\"",
                                  "\"0x10\"",
                                  "{\"x\":400,\"y\":360,\"unit\":\"DPI\"}",
                                  "{\"key\":\"1\",\"flags\":\"KillOnCopy\",\"value\":1}",
                                  "{\"key\":\"2\",\"flags\":\"KillOnSave\",\"value\":[2]}",
                                  "[[[[[[[[]]]]]]]]",
                                  "{\"format\":\"png\",\"data\":\"iVBORw0KGgo=\"}"};

const QByteArrayView kKeys[] = {"\"id\"",
                                "\"deviceId\"",
                                "\"version\"",
                                "\"name\"",
                                "\"description\"",
                                "\"dateTime\"",
                                "\"config\"",
                                "\"children\"",
                                "\"metadata\"",
                                "\"printerClass\"",
                                "\"facesMode\"",
                                "\"fileCompression\"",
                                "\"fileProtection\"",
                                "\"maximumFaces\"",
                                "\"maximumImageBytes\"",
                                "\"onlineElaboration\"",
                                "\"onlineLinearization\"",
                                "\"experimental\"",
                                "\"icon\"",
                                "\"svgIcon\"",
                                "\"channels\"",
                                "\"customHorizontalResolution\"",
                                "\"customVerticalResolution\"",
                                "\"elaborationType\"",
                                "\"allowOnlineElaboration\"",
                                "\"prefered\"",
                                "\"magnificationMin\"",
                                "\"magnificationMax\"",
                                "\"levelManagementList\"",
                                "\"scrollRatioList\"",
                                "\"resolutionList\"",
                                "\"x\"",
                                "\"y\"",
                                "\"unit\"",
                                "\"key\"",
                                "\"flags\"",
                                "\"value\"",
                                "\"format\"",
                                "\"data\"",
                                "\"\"",
                                "\"i\\u0064\"",
                                "\"Id\"",
                                "\"configs\""};

template<typename Array>
const auto &oneOf(const Array &array, Random &random)
{
    return array[random() % std::size(array)];
}

bool isBlank(char c)
{
    return c == ' ' || c == '\n' || c == '\t' || c == '\r';
}

/// Behind the text that begins at `at` with a quotation mark.
qsizetype textEnd(QByteArrayView json, qsizetype at)
{
    for (++at; at < json.size() && json[at] != '"'; ++at)
        at += json[at] == '\\' ? 1 : 0;
    return std::min(at + 1, json.size());
}

/// Every value and every key of what looks like JSON, nested ones included.
QList<Span> spansOf(QByteArrayView json)
{
    QList<Span> spans;
    QList<qsizetype> open;
    for (qsizetype at = 0; at < json.size();) {
        const char c = json[at];
        qsizetype end = at + 1;
        if (c == '{' || c == '[') {
            open.append(at);
        } else if ((c == '}' || c == ']') && !open.isEmpty()) {
            const qsizetype begin = open.takeLast();
            spans.append({begin, end - begin});
        } else if (c == '"') {
            end = textEnd(json, at);
            spans.append({at, end - at});
        } else if (!isBlank(c) && c != ',' && c != ':') {
            while (end < json.size() && !QByteArrayView(",:]} \n\t\r\"").contains(json[end]))
                ++end;
            spans.append({at, end - at});
        }
        at = end;
    }
    return spans;
}

/// The span with its key, when one stands before it.
Span memberOf(QByteArrayView json, Span span)
{
    qsizetype at = span.begin;
    const auto back = [&] {
        while (at > 0 && isBlank(json[at - 1]))
            --at;
        return at > 0 ? json[at - 1] : '\0';
    };
    if (back() != ':')
        return span;
    --at;
    if (back() != '"')
        return span;
    const qsizetype quote = at < 2 ? -1 : json.first(at - 1).lastIndexOf('"');
    return quote < 0 ? span : Span{quote, span.begin + span.size - quote};
}

QByteArray libFuzzersOwn(QByteArray bytes)
{
    const qsizetype size = bytes.size();
    bytes.resize(size + 8);
    bytes.resize(qsizetype(LLVMFuzzerMutate(reinterpret_cast<uint8_t *>(bytes.data()), size_t(size),
                                            size_t(bytes.size()))));
    return bytes;
}

void mutate(QByteArray &json, Random &random)
{
    const QList<Span> spans = spansOf(json);
    if (spans.isEmpty())
        return;
    const Span span = spans.at(qsizetype(random() % quint64(spans.size())));
    const Span member = memberOf(json, span);
    const Span other = spans.at(qsizetype(random() % quint64(spans.size())));
    switch (random() % 9) {
    case 0: // Another value.
    case 1:
        json.replace(span.begin, span.size, oneOf(kValues, random).toByteArray());
        break;
    case 2: // One that stands elsewhere.
        json.replace(span.begin, span.size, json.sliced(other.begin, other.size));
        break;
    case 3: { // Gone, with one comma.
        const qsizetype end = member.begin + member.size;
        const bool comma = end < json.size() && json.at(end) == ',';
        json.remove(member.begin, member.size + (comma ? 1 : 0));
        break;
    }
    case 4: // Twice.
        json.insert(member.begin, json.sliced(member.begin, member.size) + ',');
        break;
    case 5: // A member more.
        json.insert(member.begin,
                    oneOf(kKeys, random).toByteArray() + ':' + oneOf(kValues, random).toByteArray()
                        + ',');
        break;
    case 6: // Another key.
        if (member.begin != span.begin)
            json.replace(member.begin, textEnd(json, member.begin) - member.begin,
                         oneOf(kKeys, random).toByteArray());
        break;
    case 7: // A few bytes of it.
        json.replace(span.begin, span.size, libFuzzersOwn(json.sliced(span.begin, span.size)));
        break;
    default: // Blanks.
        json.insert(span.begin, QByteArrayView("\n \t\r\f").sliced(qsizetype(random() % 5), 1));
        break;
    }
}

} // namespace

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t maxSize,
                                          unsigned int seed)
{
    Random random(seed + 1);
    if (size == 0 || random() % 6 == 0)
        return LLVMFuzzerMutate(data, size, maxSize);
    QByteArray json = Fuzz::bytesOf(data, size);
    for (quint64 i = 1 + random() % 3; i > 0; --i)
        mutate(json, random);
    const size_t taken = std::min(size_t(json.size()), maxSize);
    std::memcpy(data, json.constData(), taken);
    return taken;
}
