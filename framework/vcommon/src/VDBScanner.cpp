// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "VDBScanner.h"

#include "VDBLineCheck.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace Norvane::Database {

namespace {

using Reason = VDBDamage::Reason;

/// Where the header was found, and where the lines after it begin.
struct HeaderPlace
{
    VDBStatus status = VDBStatus::Ok;
    qsizetype end = 0;
    bool firstIsSound = true;
};

/// The line of `bytes` that begins at `begin`, without its line end.
QByteArrayView lineAt(QByteArrayView bytes, qsizetype begin)
{
    const qsizetype end = bytes.indexOf('\n', begin);
    QByteArrayView line = end < 0 ? bytes.sliced(begin) : bytes.sliced(begin, end - begin);
    return line.endsWith('\r') ? line.chopped(1) : line;
}

/// True for what a crash during creation can leave: a strict prefix of the two header copies, or as
/// many NULs. Neither can hold a record.
bool isTornHeader(QByteArrayView bytes)
{
    if (bytes.size() > 2 * kMaxHeaderSize)
        return false;
    if (std::all_of(bytes.begin(), bytes.end(), [](char c) { return c == '\0'; }))
        return bytes.size() <= kMaxHeaderSize / 4;
    const QByteArrayView first = lineAt(bytes, 0);
    if (bytes.indexOf('\n') >= 0) {
        const QByteArray whole = first.toByteArray() + '\n' + first.toByteArray() + '\n';
        return decodeHeader(first) && bytes.size() < whole.size() && whole.startsWith(bytes);
    }
    const QByteArray start = QByteArray(kMagic) + '\t' + QByteArray::number(kFormatVersion) + '\t';
    const bool printable = std::all_of(bytes.begin(), bytes.end(),
                                       [](char c) { return uchar(c) >= 0x20 || c == '\t'; });
    return bytes.size() <= kMaxHeaderSize && printable
        && (start.startsWith(bytes) || bytes.startsWith(start));
}

/// Reads the header from whichever of its two copies is sound.
HeaderPlace readHeader(QByteArrayView bytes, Contents &contents)
{
    HeaderPlace place;
    const QByteArray start = QByteArray(kMagic) + '\t';
    const QByteArrayView first = lineAt(bytes, 0);
    QByteArrayView sound = first;
    std::optional<Header> header = decodeHeader(first);
    if (!header) {
        // A damaged first copy may have lost its line end, so the second one is searched for.
        const QByteArrayView region = bytes.first(std::min(bytes.size(), 2 * kMaxHeaderSize));
        const qsizetype second = region.indexOf(start, 1);
        sound = second < 0 ? QByteArrayView() : lineAt(region, second);
        header = decodeHeader(sound);
        place.firstIsSound = false;
    }
    if (header) {
        contents.header = *header;
        contents.headerLine = sound.toByteArray();
        place.end = sound.data() - bytes.data() + sound.size();
    } else if (headerVersion(first) > kFormatVersion) {
        place.status = VDBStatus::NewerFormat;
    } else {
        const QByteArrayView region = bytes.first(std::min(bytes.size(), 2 * kMaxHeaderSize));
        place.status =
            region.indexOf(start) >= 0 ? VDBStatus::DamagedHeader : VDBStatus::NotADatabase;
    }
    return place;
}

bool isFilling(QByteArrayView bytes)
{
    bool isOther = false;
    for (const char c : bytes)
        isOther |= c != '\n'; // Without a way out of the loop many bytes are compared at a time.
    return !isOther;
}

/// The content without the filling behind its last line end.
QByteArrayView withoutFilling(QByteArrayView bytes)
{
    constexpr qsizetype kBlock = 4096;
    while (bytes.size() > kBlock && isFilling(bytes.last(kBlock + 1)))
        bytes.chop(kBlock);
    while (bytes.endsWith("\n\n"))
        bytes.chop(1);
    return bytes;
}

/// Walks the lines and applies the batches.
///
/// The lines of a batch wait in m_pending for their commit line. A commit line that does not match
/// them moves them to m_held: what follows tells a batch that was damaged later (a seal, or a
/// further complete batch) from one that was never completed (a void mark, or the end of the file).
class Scanner
{
public:
    /// `checked` holds lines that were checked before; others are checked when they are met.
    Scanner(QByteArrayView bytes, const LineCheck &check, std::vector<CheckedLine> checked,
            Contents &contents)
        : m_bytes(bytes)
        , m_check(check)
        , m_checked(std::move(checked))
        , m_contents(contents)
    { }

    void run(const HeaderPlace &place);
    /// The damage met, in file order.
    std::vector<VDBDamage> takeDamage();

private:
    void readHeaderCopies(const HeaderPlace &place);
    void readLine();
    CheckedLine *checkedHere();
    qsizetype lineFeedHere();
    bool readMark(QByteArrayView line);
    void readChecked(CheckedLine &line);
    void readSound(CheckedLine &line);
    void readDamage(QByteArrayView bytes, const CheckedLine *line);
    void readCommit(QByteArrayView payload, qsizetype size);
    void readEnd();
    void endLine(qsizetype contentEnd);
    Entry newEntry(LineKind kind, qsizetype size, Reason damage) const;
    void hold();
    void apply(std::vector<Entry> &entries);
    void applyOne(Entry &&entry);
    void drop(std::vector<Entry> &entries, std::size_t count);
    void report(Reason reason, qint64 offset, qint64 size, qint64 line, const QString &id = {});

    const QByteArrayView m_bytes;
    const LineCheck &m_check;
    std::vector<CheckedLine> m_checked;
    Contents &m_contents;

    qsizetype m_position = 0;
    qint64 m_line = 1;
    qsizetype m_nextLineFeed = -1; ///< The first line feed at or after m_position, once known.
    std::size_t m_nextChecked = 0;
    std::vector<Entry> m_pending;
    std::vector<Entry> m_held;
    std::vector<VDBDamage> m_damage;
};

std::vector<VDBDamage> Scanner::takeDamage()
{
    std::stable_sort(m_damage.begin(), m_damage.end(),
                     [](const VDBDamage &a, const VDBDamage &b) { return a.offset < b.offset; });
    return std::move(m_damage);
}

void Scanner::report(Reason reason, qint64 offset, qint64 size, qint64 line, const QString &id)
{
    m_damage.push_back({offset, size, line, id, reason});
}

void Scanner::run(const HeaderPlace &place)
{
    readHeaderCopies(place);
    if (m_position >= m_bytes.size())
        m_contents.tail = TailState::Bare;
    while (m_position < m_bytes.size())
        readLine();
    readEnd();
}

/// Moves behind the two copies of the header.
void Scanner::readHeaderCopies(const HeaderPlace &place)
{
    if (!place.firstIsSound) {
        report(Reason::BadHeader, 0, place.end - m_contents.headerLine.size(), 1);
        m_line = m_bytes.first(place.end).count('\n') + 1;
        endLine(place.end);
        return;
    }
    endLine(place.end);
    const QByteArrayView second = lineAt(m_bytes, m_position);
    if (second.startsWith(m_contents.headerLine)) {
        endLine(m_position + m_contents.headerLine.size());
    } else if (m_position < m_bytes.size()) {
        // A copy that is gone must not cost the line that stands in its place.
        const bool isGone = second.isEmpty() || second == QByteArrayView(".")
            || second == QByteArrayView("~") || splitLine(second);
        report(Reason::BadHeader, m_position, isGone ? 0 : second.size(), m_line);
        if (!isGone)
            endLine(m_position + second.size());
    }
}

void Scanner::readLine()
{
    if (CheckedLine *const line = checkedHere()) {
        readChecked(*line);
        return;
    }
    const qsizetype end = lineFeedHere();
    const QByteArrayView bytes = m_bytes.sliced(m_position, end - m_position);
    if (bytes.isEmpty() || bytes == QByteArrayView("\r")) {
        endLine(m_position); // Blank lines are filling and have no meaning.
        return;
    }
    if (readMark(bytes))
        return;
    if (std::optional<CheckedLine> line = m_check.check(m_bytes, m_position, end))
        readChecked(*line);
    else
        readDamage(bytes, nullptr);
}

void Scanner::readChecked(CheckedLine &line)
{
    if (line.isSound())
        readSound(line);
    else
        readDamage(m_bytes.sliced(m_position, line.size), &line);
}

/// The line that begins here, if it was checked before. Damage may let a line begin in the middle
/// of what was taken for one.
CheckedLine *Scanner::checkedHere()
{
    while (m_nextChecked < m_checked.size() && m_checked[m_nextChecked].begin < m_position)
        ++m_nextChecked;
    const bool isHere =
        m_nextChecked < m_checked.size() && m_checked[m_nextChecked].begin == m_position;
    return isHere ? &m_checked[m_nextChecked] : nullptr;
}

/// Where the first line feed from here on is, or the end.
qsizetype Scanner::lineFeedHere()
{
    if (m_nextLineFeed < m_position) {
        m_nextLineFeed = m_bytes.indexOf('\n', m_position);
        if (m_nextLineFeed < 0)
            m_nextLineFeed = m_bytes.size();
    }
    return m_nextLineFeed;
}

/// Moves behind the line end that is due at `contentEnd`, whatever stands there.
void Scanner::endLine(qsizetype contentEnd)
{
    m_position = contentEnd;
    if (m_position >= m_bytes.size())
        return;
    const QByteArrayView rest = m_bytes.sliced(m_position);
    if (rest.startsWith('\n')) {
        m_position += 1;
    } else if (rest.startsWith(QByteArrayView("\r\n"))) {
        report(Reason::BadLineEnd, m_position, 2, m_line);
        m_position += 2;
    } else {
        // The next line may begin at once, if the line end was lost rather than altered. A void
        // mark is not believed here: a stray byte must not void what stands before it.
        const bool lost = QByteArrayView("+-=.").contains(rest[0]);
        report(Reason::BadLineEnd, m_position, lost ? 0 : 1, m_line);
        m_position += lost ? 0 : 1;
        return; // Still the same line for whoever counts line feeds.
    }
    ++m_line;
}

/// Reads a seal or a void mark; false when the line is neither.
bool Scanner::readMark(QByteArrayView line)
{
    const bool isSeal = line[0] == char(LineKind::Seal);
    if (!isSeal && line[0] != char(LineKind::Void))
        return false;
    const bool isWhole = line.size() == 1 || line.sliced(1) == QByteArrayView("\r");
    // An altered line feed leaves another byte behind the mark; a lost one none. A stray byte
    // before a line must not void what stands before it, so that much is not believed of a void
    // mark.
    const bool lostItsEnd =
        line.size() > 2 && (splitLine(line.sliced(2)) || (isSeal && splitLine(line.sliced(1))));
    if (!isWhole && !lostItsEnd)
        return false;
    if (isSeal) {
        // What is sealed was complete once: a commit that does not match is damage of later.
        apply(m_held);
        apply(m_pending);
    } else {
        drop(m_held, m_held.size());
        drop(m_pending, m_pending.size());
    }
    m_contents.tail = TailState::Clean;
    endLine(m_position + 1);
    return true;
}

Entry Scanner::newEntry(LineKind kind, qsizetype size, Reason damage) const
{
    Entry entry;
    entry.kind = kind;
    entry.offset = m_position;
    entry.size = size;
    entry.line = m_line;
    entry.damage = damage;
    return entry;
}

/// Takes note of a sound insert, removal or commit.
void Scanner::readSound(CheckedLine &line)
{
    if (line.kind == LineKind::Commit) {
        readCommit(m_bytes.sliced(m_position + line.payloadAt, line.soundSize - line.payloadAt),
                   line.soundSize);
    } else {
        Entry entry = newEntry(line.kind, line.soundSize, Reason::NotALine);
        entry.hasLineFeed = line.hasLineFeed;
        entry.payloadAt = line.payloadAt;
        entry.lastFieldAt = line.lastFieldAt;
        entry.sum = line.sum;
        entry.id = std::move(line.id);
        entry.isSound = true;
        m_pending.push_back(std::move(entry));
    }
    if (line.hasLineFeed) {
        m_position += line.soundSize + 1;
        ++m_line;
    } else {
        endLine(m_position + line.soundSize);
    }
}

/// Takes note of a line that cannot be used; `line` is null when it has no known shape.
void Scanner::readDamage(QByteArrayView bytes, const CheckedLine *line)
{
    Entry entry = newEntry(LineKind::Insert, bytes.size(), Reason::NotALine);
    entry.hasLineFeed = bytes.end() != m_bytes.end() && *bytes.end() == '\n';
    entry.looksTorn = QByteArrayView("+-=\0", 4).contains(bytes[0]);
    if (line != nullptr) {
        entry.kind = line->kind;
        entry.damage = line->kind == LineKind::Commit ? Reason::BadCommit : Reason::BadSignature;
        entry.isRecord = line->kind == LineKind::Insert;
        entry.payloadAt = line->payloadAt;
        entry.lastFieldAt = line->lastFieldAt;
        entry.id = line->id;
    } else if (bytes.startsWith(m_contents.headerLine)) {
        entry.damage = Reason::BadHeader;
    }
    const bool isCommit = entry.damage == Reason::BadCommit;
    m_pending.push_back(std::move(entry));
    if (isCommit)
        hold();
    endLine(m_position + bytes.size());
}

/// Ends the batch with a sound commit line.
void Scanner::readCommit(QByteArrayView payload, qsizetype size)
{
    const auto count = findField(payload, u"lines"_s).toULongLong();
    std::vector<std::size_t> lines;
    lines.reserve(m_pending.size());
    for (std::size_t i = 0; i < m_pending.size(); ++i) {
        if (m_pending[i].isSound || m_pending[i].isRecord)
            lines.push_back(i);
    }
    // Lines that an interrupted batch left in front do not belong to this one.
    const std::size_t skipped = lines.size() > count ? lines.size() - std::size_t(count) : 0;
    bool complete = lines.size() - skipped == count;
    QByteArray sums;
    sums.reserve(qsizetype(lines.size()) * kSumLength);
    for (std::size_t i = skipped; i < lines.size(); ++i) {
        sums += QByteArrayView(m_pending[lines[i]].sum);
        complete = complete && m_pending[lines[i]].isSound;
    }
    if (complete && Signer::sum(sums) == findField(payload, u"digest"_s).toLatin1()) {
        apply(m_held);
        if (skipped > 0)
            drop(m_pending, lines[skipped - 1] + 1);
        apply(m_pending);
        m_contents.tail = TailState::Unsealed;
    } else {
        m_pending.push_back(newEntry(LineKind::Commit, size, Reason::BadCommit));
        hold();
    }
}

/// Puts the batch aside until what follows decides about it.
///
/// A commit line that does not match decides nothing about the batch before it: it may be left of a
/// commit that failed and was taken back, should a power cut bring that to light again.
void Scanner::hold()
{
    std::move(m_pending.begin(), m_pending.end(), std::back_inserter(m_held));
    m_pending.clear();
}

void Scanner::readEnd()
{
    m_contents.endsInsideLine = !m_bytes.endsWith('\n');
    m_contents.end = m_bytes.size();
    m_contents.line = m_line;
    const bool torn = std::any_of(m_pending.begin(), m_pending.end(), [](const Entry &entry) {
        return entry.isSound || entry.isRecord || entry.looksTorn;
    });
    if (!m_held.empty() || torn) {
        m_contents.tail = TailState::Unfinished;
        drop(m_held, m_held.size());
        drop(m_pending, m_pending.size());
    }
    apply(m_pending); // What is left is foreign: reported, and kept where it is.
}

void Scanner::drop(std::vector<Entry> &entries, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        report(Reason::Unfinished, entries[i].offset, entries[i].size, entries[i].line,
               entries[i].id);
    entries.erase(entries.begin(), entries.begin() + std::ptrdiff_t(count));
}

void Scanner::apply(std::vector<Entry> &entries)
{
    for (Entry &entry : entries)
        applyOne(std::move(entry));
    entries.clear();
}

void Scanner::applyOne(Entry &&entry)
{
    if (!entry.isSound) {
        report(entry.damage, entry.offset, entry.size, entry.line, entry.id);
        if (!entry.isRecord
            && (entry.kind != LineKind::Insert || entry.damage == Reason::BadHeader))
            return;
    }
    m_contents.add(std::move(entry));
}

} // namespace

Contents scan(QByteArrayView bytes, const Signer &signer, const VDBReporter &reporter,
              qsizetype pieceSize)
{
    Contents contents;
    if (bytes.isEmpty() || isTornHeader(bytes)) {
        contents.status = VDBStatus::Empty;
        return contents;
    }
    const HeaderPlace place = readHeader(bytes, contents);
    contents.status = place.status;
    if (contents.status == VDBStatus::Ok && signer.isKeyed()
        && signer.keyCheck() != contents.header.keyCheck)
        contents.status = VDBStatus::WrongKey;
    if (contents.status != VDBStatus::Ok)
        return contents;
    const QByteArrayView content = withoutFilling(bytes);
    const LineCheck check{.signer = signer, .keyField = contents.header.keyField};
    std::vector<CheckedLine> checked = check.checkAll(content, pieceSize);
    contents.reserve(checked.size());
    Scanner scanner(content, check, std::move(checked), contents);
    scanner.run(place);
    if (reporter) {
        for (const VDBDamage &damage : scanner.takeDamage())
            reporter(damage);
    }
    return contents;
}

} // namespace Norvane::Database
