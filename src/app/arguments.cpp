#include "app/arguments.h"

#include <algorithm>

namespace loftwing {

Arguments::Arguments(const std::vector<std::string> &words, const std::vector<OptionRule> &rules) {
    bool options = true;
    for (std::size_t at = 0; at < words.size(); ++at) {
        const std::string &word = words[at];
        if (options && word == "--") {
            options = false;
        } else if (options && word.size() > 1 && word[0] == '-') {
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

std::string Arguments::Value(const std::string &name, const std::string &fallback) const {
    const auto option = options_.find(name);
    return option == options_.end() ? fallback : option->second.back();
}

std::vector<std::string> Arguments::Values(const std::string &name) const {
    const auto option = options_.find(name);
    return option == options_.end() ? std::vector<std::string>() : option->second;
}

} // namespace loftwing
