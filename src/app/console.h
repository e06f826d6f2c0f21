/// Where a verb tells what it has to tell.
#pragma once

#include <cstddef>
#include <ostream>
#include <streambuf>
#include <string>
#include <string_view>
#include <vector>

namespace loftwing {

/// The two streams of a command line program.
struct Console {
    std::ostream &out;
    std::ostream &err;
};

/// Those of this process.
Console StandardConsole();

/// What is told on both streams, kept in its order across them until it may be shown.
class Transcript {
  public:
    Transcript();
    Transcript(const Transcript &) = delete;
    Transcript &operator=(const Transcript &) = delete;

    /// The streams to tell on. They live as long as the transcript.
    Console Streams() { return {out_, err_}; }
    /// Tells all that was told here.
    void TellOn(const Console &console) const;
    /// About how many bytes it keeps.
    std::size_t Size() const;

  private:
    /// What came on one stream before the other one had its turn.
    struct Part {
        bool on_err = false;
        std::string text;
    };

    class Buffer : public std::streambuf {
      public:
        Buffer(std::vector<Part> &parts, bool is_err) : parts_(parts), is_err_(is_err) {}

      protected:
        int_type overflow(int_type character) override;
        std::streamsize xsputn(const char *text, std::streamsize count) override;

      private:
        std::vector<Part> &parts_;
        bool is_err_;

        void Add(std::string_view text);
    };

    std::vector<Part> parts_;
    Buffer out_buffer_{parts_, false};
    Buffer err_buffer_{parts_, true};
    std::ostream out_;
    std::ostream err_;
};

} // namespace loftwing
