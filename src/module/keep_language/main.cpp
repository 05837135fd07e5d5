// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// keep_language IN OUT: writes the catalogue IN to OUT with nothing but its language's tag.
//
// lrelease adds the rules for plurals of the language. In a catalogue without texts they are dead
// weight, and whoever looks into it should see that it is empty. The build runs this program.

#include <cstddef>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>

namespace {

// A catalogue is a magic number, then sections: a tag, a big-endian length, and that many bytes.
constexpr std::size_t kMagicSize = 16;
constexpr std::size_t kLengthSize = 4;
constexpr unsigned char kLanguageTag = 0xA7;

std::optional<std::string> languageOnly(const std::string &catalogue)
{
    if (catalogue.size() < kMagicSize)
        return {};
    std::string kept = catalogue.substr(0, kMagicSize);
    for (std::size_t at = kMagicSize; at < catalogue.size();) {
        const std::size_t content = at + 1 + kLengthSize;
        if (content > catalogue.size())
            return {};
        std::size_t length = 0;
        for (std::size_t i = at + 1; i < content; ++i)
            length = length << 8 | static_cast<unsigned char>(catalogue[i]);
        if (length > catalogue.size() - content)
            return {};
        if (static_cast<unsigned char>(catalogue[at]) == kLanguageTag)
            kept += catalogue.substr(at, content + length - at);
        at = content + length;
    }
    return kept;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 3)
        return 2;
    std::ifstream in(argv[1], std::ios::binary);
    const std::string whole{std::istreambuf_iterator<char>(in), {}};
    const auto kept = in ? languageOnly(whole) : std::nullopt;
    if (!kept)
        return 1;
    std::ofstream out(argv[2], std::ios::binary);
    out << *kept;
    return out.flush() ? 0 : 1;
}
