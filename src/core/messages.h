/// Boxes in the user's language: where a rule meets the user.
#pragma once

#include "base/failure.h"
#include "lang/LngIni.h"
#include "lang/failure_words.h"
#include "platform/platform.h"

#include <functional>
#include <string>

namespace loftwing {

/// The two things that a message takes: somebody who shows it and somebody who words it.
struct Messages {
    Platform &platform;
    const LngIni &language;

    std::string Text(LngKey key) const { return language.LngText(key); }

    /// Gives the buttons of boxes their words. To be done as soon as a language is loaded, for the
    /// next box may come before anything else.
    void PoseMotsDesBoutons() const;

    /// An information box with one button.
    void Inform(const std::string &text, const std::string &title) const;
    /// A box with one button and another icon.
    void Tell(const std::string &text, const std::string &title, BoxIcon icon) const;
    /// A question with Yes and No, No as default; true for Yes.
    bool Confirm(const std::string &text, const std::string &title) const;
    /// The same where something would be lost: it may be saved instead. True for Yes, and when
    /// `save`, which tells what goes wrong, has saved it.
    bool ConfirmLoss(const std::string &text, const std::string &title,
                     const std::function<bool()> &save) const;

    /// What happened, in the user's language; see lang/failure_words.h.
    std::string Description(const Failure &failure) const {
        return loftwing::Description(failure, language);
    }
    /// The text of a failure's standard box.
    std::string TexteEchec(const Failure &failure) const;
    /// The standard box of a run-time failure. `label` is the label of the routine that failed,
    /// with its leading blank, such as " Calcul/Alocate".
    void Report(const Failure &failure, const std::string &label) const;
    /// The same in the words of the plot and print routines. `window` stands in front of the title.
    void ReportPlot(const Failure &failure, const std::string &label,
                    const std::string &window = {}) const;
    /// Runs what an event asks for. A failure is told under `label` and goes no further.
    template <class Action>
    void Garde(const std::string &label, Action action) const {
        try {
            action();
        } catch (const Failure &failure) {
            Report(failure, label);
        }
    }
};

} // namespace loftwing
