#pragma once

// What the user is to be told of when a call is refused, and how a test names a refusal.

#include <initializer_list>
#include <string>
#include <vector>

#include "tests/hands/refused_life.h"
#include "tests/support/probe/refusable_calls.h"

[[nodiscard]] const probe::RefusableCall& CallOf(const StepRefusal& refusal);
[[nodiscard]] bool IsCall(const StepRefusal& refusal, std::initializer_list<const char*> names);
// Whether the plan refuses one of these calls in any step.
[[nodiscard]] bool IsRefused(const LifePlan& plan, std::initializer_list<const char*> names);

// Whether the user is told of the refusal in this step, and by which boxes' texts, in the world's language.
[[nodiscard]] bool IsTold(LifeStep step, const StepRefusal& refusal);
[[nodiscard]] std::vector<std::wstring> TextsOf(LifeStep step, const StepRefusal& refusal);

// A box's text in English, whichever language it was shown in.
[[nodiscard]] std::wstring InEnglish(const std::wstring& text);

// For messages of tests.
[[nodiscard]] std::string Described(const LifePlan& plan);
