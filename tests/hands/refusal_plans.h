#pragma once

// The lives with refusals of which one world lives its part: which call is refused in which step of which
// life.

#include <vector>

#include "tests/hands/refused_life.h"

inline const LifeSteps ShortLife = {LifeStep::Start, LifeStep::Search, LifeStep::Rename, LifeStep::Close};
inline const LifeSteps WholeLife = {
    LifeStep::Start,  LifeStep::Search, LifeStep::Sort,       LifeStep::View,     LifeStep::FailedRename,
    LifeStep::Rename, LifeStep::Delete, LifeStep::Properties, LifeStep::Shortcut, LifeStep::StartMenu,
    LifeStep::Browse, LifeStep::About,  LifeStep::Close};
// The uninstall ends a life, and where it fails the close box does.
inline const LifeSteps LifeWithUninstall = {LifeStep::Start, LifeStep::Search, LifeStep::Uninstall,
                                            LifeStep::Close};

// Of the places where lives without refusals have made their calls: each place refused once.
[[nodiscard]] std::vector<LifePlan> LivesWithRefusalsOnce(const std::vector<probe::CallPlace>& places);
// Each call refused from each step on in which it is made.
[[nodiscard]] std::vector<LifePlan> LivesWithRefusalsFromThenOn(const std::vector<probe::CallPlace>& places);
