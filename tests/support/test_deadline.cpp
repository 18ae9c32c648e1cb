#include "tests/support/test_deadline.h"

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <string>
#include <thread>

namespace {

class TestDeadline : public testing::EmptyTestEventListener {
  public:
    explicit TestDeadline(int secondsPerTest) : seconds(secondsPerTest), watcher([this] { Watch(); }) {}

    ~TestDeadline() override {
        {
            const std::lock_guard lock(mutex);
            ended = true;
        }
        changed.notify_one();
        watcher.join();
    }

    void OnTestSuiteStart(const testing::TestSuite& suite) override {
        SetRunning(std::string("the set-up of ") + suite.name());
    }
    void OnTestStart(const testing::TestInfo& test) override {
        SetRunning(std::string(test.test_suite_name()) + "." + test.name());
    }
    void OnTestEnd(const testing::TestInfo& test) override {
        SetRunning(std::string("what follows ") + test.test_suite_name() + "." + test.name());
    }
    void OnTestProgramEnd(const testing::UnitTest&) override { SetRunning(""); }

  private:
    void SetRunning(const std::string& name) {
        {
            const std::lock_guard lock(mutex);
            running = name;
            ++step;
        }
        changed.notify_one();
    }

    // Each change of what is running starts the clock anew.
    void Watch() {
        std::unique_lock lock(mutex);
        while (!ended) {
            const unsigned long seenStep = step;
            const auto moved = [&] { return ended || step != seenStep; };
            if (running.empty()) {
                changed.wait(lock, moved);
            } else if (!changed.wait_for(lock, std::chrono::seconds(seconds), moved)) {
                GiveUp();
            }
        }
    }

    [[noreturn]] void GiveUp() {
        std::printf("[  FAILED  ] %s (still running after %d s, the test program ends here)\n",
                    running.c_str(), seconds);
        std::fflush(stdout);
        std::_Exit(3);
    }

    int seconds;
    std::mutex mutex;
    std::condition_variable changed;
    std::string running;
    unsigned long step = 0;
    bool ended = false;
    std::thread watcher;  // last, since it reads the others
};

}  // namespace

void WatchTests(int secondsPerTest) {
    // GoogleTest owns its listeners.
    testing::UnitTest::GetInstance()->listeners().Append(new TestDeadline(secondsPerTest));
}
