#include "tests/hands/refusal_outcomes.h"

#include <cstdio>
#include <set>
#include <string>

#include "tests/hands/refusal_words.h"
#include "tests/support/utf8.h"

namespace {

void AddOutcome(std::set<std::string>& outcomes, const StepReport& now) {
    for (const std::wstring& text : now.errors)
        outcomes.insert("told: " + Utf8(InEnglish(text)));
    if (!now.fatals.empty()) outcomes.insert("told of the window");
    if (now.isAborted) outcomes.insert("Abort ends the search");
}

std::string Joined(const std::set<std::string>& outcomes) {
    std::string text;
    for (const std::string& outcome : outcomes)
        text += (text.empty() ? "" : "; ") + outcome;
    return text.empty() ? "goes on" : text;
}

void AddEnd(std::set<std::string>& outcomes, const LifeReport& report) {
    if (report.exitCode != 0) outcomes.insert("ends with " + std::to_string(report.exitCode));
}

std::string OutcomeOf(LifeStep step, const LifeReport& report) {
    std::set<std::string> outcomes;
    AddOutcome(outcomes, report.At(step));
    if (step == report.steps.rbegin()->first) AddEnd(outcomes, report);
    return Joined(outcomes);
}

std::string OutcomeOfAll(const LifeReport& report) {
    std::set<std::string> outcomes;
    for (const auto& [step, now] : report.steps)
        AddOutcome(outcomes, now);
    AddEnd(outcomes, report);
    return Joined(outcomes);
}

void WriteLine(LifeStep step, const StepRefusal& refusal, const std::string& outcome) {
    std::printf("REFUSAL|%s|%lu|%s|%s|%s\n", CallOf(refusal).name, refusal.code,
                refusal.fromThenOn ? "from then on" : "once", NameOf(step), outcome.c_str());
    std::fflush(stdout);
}

}  // namespace

void WriteOutcomes(const LifePlan& plan, const LifeReport& report) {
    for (const auto& [step, refusal] : plan.refusals) {
        const StepReport& now = report.At(step);
        if (now.timesRefused == 0) {
            WriteLine(step, refusal, "not reached");
        } else {
            WriteLine(step, refusal, refusal.fromThenOn ? OutcomeOfAll(report) : OutcomeOf(step, report));
        }
    }
}

void WriteHang(const LifePlan& plan) {
    for (const auto& [step, refusal] : plan.refusals)
        WriteLine(step, refusal, "hangs");
}
