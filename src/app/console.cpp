#include "app/console.h"

#include <iostream>

namespace loftwing {

Console StandardConsole() {
    return {std::cout, std::cerr};
}

Transcript::Transcript() : out_(&out_buffer_), err_(&err_buffer_) {}

void Transcript::TellOn(const Console &console) const {
    for (const Part &part : parts_) {
        (part.on_err ? console.err : console.out) << part.text;
    }
}

std::size_t Transcript::Size() const {
    std::size_t size = 0;
    for (const Part &part : parts_) {
        size += part.text.size();
    }
    return size;
}

Transcript::Buffer::int_type Transcript::Buffer::overflow(int_type character) {
    if (!traits_type::eq_int_type(character, traits_type::eof())) {
        const char added = traits_type::to_char_type(character);
        Add({&added, 1});
    }
    return traits_type::not_eof(character);
}

std::streamsize Transcript::Buffer::xsputn(const char *text, std::streamsize count) {
    Add({text, static_cast<std::size_t>(count)});
    return count;
}

void Transcript::Buffer::Add(std::string_view text) {
    if (parts_.empty() || parts_.back().on_err != is_err_) {
        parts_.push_back({is_err_, {}});
    }
    parts_.back().text += text;
}

} // namespace loftwing
