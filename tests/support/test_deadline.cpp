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
    explicit TestDeadline(int secondsPerTest) : seconds_(secondsPerTest), watcher_([this] { Watch(); }) {}

    ~TestDeadline() override {
        {
            const std::lock_guard lock(mutex_);
            ended_ = true;
        }
        changed_.notify_one();
        watcher_.join();
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
            const std::lock_guard lock(mutex_);
            running_ = name;
            ++step_;
        }
        changed_.notify_one();
    }

    // Each change of what is running starts the clock anew.
    void Watch() {
        std::unique_lock lock(mutex_);
        while (!ended_) {
            const unsigned long seenStep = step_;
            const auto moved = [&] { return ended_ || step_ != seenStep; };
            if (running_.empty()) {
                changed_.wait(lock, moved);
            } else if (!changed_.wait_for(lock, std::chrono::seconds(seconds_), moved)) {
                GiveUp();
            }
        }
    }

    [[noreturn]] void GiveUp() {
        std::printf("[  FAILED  ] %s (still running after %d s, the test program ends here)\n",
                    running_.c_str(), seconds_);
        std::fflush(stdout);
        std::_Exit(3);
    }

    int seconds_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::string running_;
    unsigned long step_ = 0;
    bool ended_ = false;
    std::thread watcher_;  // last, since it reads the others
};

}  // namespace

void WatchTests(int secondsPerTest) {
    // GoogleTest owns its listeners.
    testing::UnitTest::GetInstance()->listeners().Append(new TestDeadline(secondsPerTest));
}
