#pragma once

// How a long piece of work on the one thread keeps the windows alive.

enum class PumpOutcome {
    // Did not look: the queue was empty only just now.
    NotYet,
    // Looked, and nothing was waiting.
    Empty,
    // One message was taken and dispatched; more may wait.
    Dispatched,
    // The program is to end, and so is the work. The quit message is posted again for the outer loop, so
    // every further call returns the same.
    Quit,
};

// Takes at most one message, of any window of this thread, and dispatches it. A look at an empty queue costs
// more than an entry of a folder, so after one it looks again only when about 10 ms have passed.
[[nodiscard]] PumpOutcome PumpOneMessage();

// Makes the next call look at once, as at the start of a piece of work.
void ExpectMessages();
