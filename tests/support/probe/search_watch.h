#pragma once

// Watches searches from inside: counts those begun and ended, and can hold the program's thread in the
// middle of one. A hold is a message of the probe's own that waits in the queue; when the search's message
// pump takes it and the list has the rows asked for, the thread stands still, but for messages sent to it,
// until the driver releases it or the deadline has passed.

#include <windows.h>

#include "tests/support/probe/answer_writer.h"

namespace probe {

void AnswerCounters(AnswerWriter& writer);

// Holds the next search once the list shows this many rows. A hold that stays awake takes every message, as
// the search's own pump does: pointer and keys work then.
void ArmHold(int rows, int longestMilliseconds, bool staysAwake);

// To be called for every message that the thread takes from its queue, and for every message sent to one of
// its windows.
void WatchTakenMessage(const MSG& message);
void WatchSentMessage(const CWPSTRUCT& message);

}  // namespace probe
