#include "app/console.h"

#include <gtest/gtest.h>

#include <sstream>
#include <streambuf>

namespace loftwing {
namespace {

/// Both streams of a console into one, each character after a sign of its stream.
class Marked : public std::streambuf {
  public:
    Marked(std::string &shown, char sign) : shown_(shown), sign_(sign) {}

  protected:
    int_type overflow(int_type character) override {
        shown_ += sign_;
        shown_ += traits_type::to_char_type(character);
        return character;
    }

  private:
    std::string &shown_;
    char sign_;
};

class TranscriptOrder : public testing::Test {
  protected:
    std::string shown_;

    void Show(const Transcript &transcript) {
        Marked out_buffer(shown_, '.');
        Marked err_buffer(shown_, '!');
        std::ostream out(&out_buffer);
        std::ostream err(&err_buffer);
        transcript.TellOn({out, err});
    }
};

TEST_F(TranscriptOrder, IsThatInWhichItWasTold) {
    Transcript transcript;
    const Console console = transcript.Streams();
    console.out << "ab" << 1;
    console.err << 'x';
    console.out << 'c';
    console.err << "yz";
    Show(transcript);
    EXPECT_EQ(shown_, ".a.b.1!x.c!y!z");
    EXPECT_EQ(transcript.Size(), 7U);
}

TEST_F(TranscriptOrder, OfNothingIsNothing) {
    Transcript transcript;
    transcript.Streams().out << "";
    transcript.Streams().err << std::flush;
    Show(transcript);
    EXPECT_EQ(shown_, "");
    EXPECT_EQ(transcript.Size(), 0U);
}

TEST_F(TranscriptOrder, KeepsAllBytes) {
    Transcript transcript;
    const std::string bytes("a\0\xFF\r\n", 5);
    transcript.Streams().out << bytes;
    transcript.Streams().out.put('\xFF');
    std::ostringstream out;
    std::ostringstream err;
    transcript.TellOn({out, err});
    EXPECT_EQ(out.str(), bytes + '\xFF');
    EXPECT_EQ(err.str(), "");
}

} // namespace
} // namespace loftwing
