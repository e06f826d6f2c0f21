/// The words of a command line, taken apart by a table of options.
#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace loftwing {

/// Wrong usage: the reason is said on standard error, and the status is 2.
struct UsageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// A refusal that has been reported: nothing more is said, and the status is 1.
struct Refused {};

/// For an option that takes all words up to the next option, at least one.
inline constexpr int kAllWords = 0;

/// One option that a verb knows.
struct OptionRule {
    const char *name;  ///< "--chord"
    const char *value; ///< what it takes, for the help; null for a switch
    std::string help;
    bool repeatable = false;
    int values = 1;                        ///< number of words that it takes, or kAllWords
    std::vector<std::string> choices = {}; ///< words to offer for it, where they can be listed
};

/// What stood on the command line.
class Arguments {
  public:
    /// Options as "--name value" or "--name=value", those of several values as "--name A B"; "-o"
    /// is
    /// "--output"; "--" ends them. Throws UsageError for an option that isn't in `rules`, stands
    /// twice, lacks a value or has one too many.
    Arguments(const std::vector<std::string> &words, const std::vector<OptionRule> &rules);

    bool Has(const std::string &name) const { return options_.contains(name); }
    /// The value of an option, `fallback` when it isn't there.
    std::string Value(const std::string &name, const std::string &fallback = {}) const;
    /// All values of an option that is repeatable or takes several, in their order.
    std::vector<std::string> Values(const std::string &name) const;
    const std::vector<std::string> &Files() const { return files_; }

  private:
    std::map<std::string, std::vector<std::string>> options_;
    std::vector<std::string> files_;

    void Take(const std::vector<OptionRule> &rules, const std::vector<std::string> &words,
              std::size_t &at);
    void TakeSeveral(const OptionRule &rule, const std::vector<std::string> &words,
                     std::size_t &at);
};

} // namespace loftwing
