#include "tests/hands/refusal_plans.h"

#include <map>
#include <set>

#include "tests/hands/refusal_words.h"
#include "tests/program/program_test.h"

namespace {

constexpr LONG WorldCount = 4;

LONG NumberOfWorld() {
    const LONG language = World().japaneseSystem ? 2 : 0;
    return language + (World().screenWidth > World().screenHeight ? 1 : 0);
}

// Whichever places a world has noted, each refusal is one world's.
bool IsOfThisWorld(LifeStep step, const StepRefusal& refusal) {
    const auto sum =
        static_cast<DWORD>(refusal.call + refusal.place) + refusal.code + static_cast<DWORD>(step);
    return sum % WorldCount == static_cast<DWORD>(NumberOfWorld());
}

// Every place, with each code of its call where the user is told of it, and with another one each time
// elsewhere; by step.
std::map<LifeStep, std::vector<StepRefusal>> OnceByStep(const std::vector<probe::CallPlace>& places) {
    std::map<LifeStep, std::vector<StepRefusal>> refusals;
    for (const probe::CallPlace& place : places) {
        const auto step = static_cast<LifeStep>(place.step);
        const probe::RefusableCall& call = probe::RefusableCalls[place.call];
        StepRefusal refusal = {place.call, place.place, 0, false};
        const std::size_t number = IsTold(step, refusal) ? call.CodeCount() : 1;
        for (std::size_t i = 0; i < number; ++i) {
            // By the place, so that all worlds choose the same one.
            refusal.code = call.codes[(static_cast<std::size_t>(place.place) + i) % call.CodeCount()];
            if (IsOfThisWorld(step, refusal)) refusals[step].push_back(refusal);
        }
    }
    return refusals;
}

}  // namespace

// What fails at the start, in the search or in the uninstall may cost everything that follows. All others
// share lives, one a step.
std::vector<LifePlan> LivesWithRefusalsOnce(const std::vector<probe::CallPlace>& places) {
    std::map<LifeStep, std::vector<StepRefusal>> refusals = OnceByStep(places);
    std::vector<LifePlan> plans;
    for (const LifeStep step : {LifeStep::Start, LifeStep::Search, LifeStep::Uninstall}) {
        const LifeSteps& steps = step == LifeStep::Uninstall ? LifeWithUninstall : ShortLife;
        for (const StepRefusal& refusal : refusals[step])
            plans.push_back({steps, {{step, refusal}}});
        refusals.erase(step);
    }
    for (std::size_t number = 0;; ++number) {
        LifePlan plan = {WholeLife, {}};
        for (const auto& [step, all] : refusals)
            if (number < all.size()) plan.refusals[step] = all[number];
        if (plan.refusals.empty()) return plans;
        plans.push_back(plan);
    }
}

std::vector<LifePlan> LivesWithRefusalsFromThenOn(const std::vector<probe::CallPlace>& places) {
    std::set<std::pair<LONG, LONG>> known;
    std::vector<LifePlan> plans;
    for (const probe::CallPlace& place : places) {
        if (!known.emplace(place.call, place.step).second) continue;
        const auto step = static_cast<LifeStep>(place.step);
        const StepRefusal refusal = {place.call, 0, probe::RefusableCalls[place.call].codes[0], true};
        if (!IsOfThisWorld(step, refusal)) continue;
        plans.push_back({step == LifeStep::Uninstall ? LifeWithUninstall : WholeLife, {{step, refusal}}});
    }
    return plans;
}
