#include "app/arguments.h"

#include <algorithm>

namespace loftwing {

namespace {

bool IsOption(const std::string &word) {
    return word.size() > 1 && word[0] == '-';
}

} // namespace

Arguments::Arguments(const std::vector<std::string> &words, const std::vector<OptionRule> &rules) {
    bool options = true;
    for (std::size_t at = 0; at < words.size(); ++at) {
        const std::string &word = words[at];
        if (options && word == "--") {
            options = false;
        } else if (options && IsOption(word)) {
            Take(rules, words, at);
        } else {
            files_.push_back(word);
        }
    }
}

void Arguments::Take(const std::vector<OptionRule> &rules, const std::vector<std::string> &words,
                     std::size_t &at) {
    const std::string &word = words[at];
    const std::size_t equals = word.starts_with("--") ? word.find('=') : std::string::npos;
    std::string name = word.substr(0, equals);
    if (name == "-o") {
        name = "--output";
    }
    const auto rule = std::find_if(rules.begin(), rules.end(),
                                   [&](const OptionRule &each) { return name == each.name; });
    if (rule == rules.end()) {
        throw UsageError("unknown option " + name);
    }
    if (options_.contains(name) && !rule->repeatable) {
        throw UsageError("option " + name + " stands twice");
    }
    if (rule->value == nullptr && equals != std::string::npos) {
        throw UsageError("option " + name + " takes no value");
    }
    if (rule->value != nullptr && rule->values != 1) {
        if (equals != std::string::npos) {
            throw UsageError("option " + name + " takes " + rule->value + " as words of their own");
        }
        TakeSeveral(*rule, words, at);
        return;
    }
    std::string value;
    if (rule->value != nullptr && equals != std::string::npos) {
        value = word.substr(equals + 1);
    } else if (rule->value != nullptr) {
        if (++at == words.size()) {
            throw UsageError("option " + name + " wants a value");
        }
        value = words[at];
    }
    options_[name].push_back(value);
}

void Arguments::TakeSeveral(const OptionRule &rule, const std::vector<std::string> &words,
                            std::size_t &at) {
    const bool all = rule.values == kAllWords;
    const auto wanted = static_cast<std::size_t>(rule.values);
    std::vector<std::string> values;
    // One value short, the next option must not be taken for it.
    while ((all || values.size() < wanted) && at + 1 < words.size() && !IsOption(words[at + 1])) {
        values.push_back(words[++at]);
    }
    if (values.size() < (all ? 1 : wanted)) {
        throw UsageError(std::string("option ") + rule.name + " wants " + rule.value);
    }
    std::vector<std::string> &taken = options_[rule.name];
    taken.insert(taken.end(), values.begin(), values.end());
}

std::string Arguments::Value(const std::string &name, const std::string &fallback) const {
    const auto option = options_.find(name);
    return option == options_.end() ? fallback : option->second.back();
}

std::vector<std::string> Arguments::Values(const std::string &name) const {
    const auto option = options_.find(name);
    return option == options_.end() ? std::vector<std::string>() : option->second;
}

} // namespace loftwing
