// Shell tests: sessions on the chip model with their output captured.
#pragma once

#include <memory>
#include <sstream>
#include <string>

#include "session.h"
#include "support/test_support.h"

namespace shelltest {

// A session with its own output streams, started with the given options.
struct Shell {
    explicit Shell(const vqshell::SessionOptions &options = {}) { started = session.start(options); }
    std::ostringstream out, err;
    vqshell::Session session{out, err};
    bool started = false;
};

// One started session per test; teardown ends it and checks that every allocation was given back.
class ShellTest : public ::testing::Test {
  protected:
    // Ends the running session first: two sessions would install the same chips.
    void start(const vqshell::SessionOptions &options) {
        shell.reset();
        shell = std::make_unique<Shell>(options);
        ASSERT_TRUE(shell->started) << shell->err.str();
    }
    void SetUp() override { start({}); }
    void TearDown() override {
        shell.reset();
        EXPECT_EQ(vqtest::outstandingAllocations(), baseline);
    }
    // Runs a line and gives its standard output; `expectOk` is what the line must report.
    std::string run(const std::string &line, bool expectOk = true) {
        shell->out.str("");
        shell->err.str("");
        EXPECT_EQ(shell->session.runLine(line), expectOk) << line;
        return shell->out.str();
    }
    std::string err() const { return shell->err.str(); }
    vqshell::Session &session() { return shell->session; }

    vqtest::PlatformCapture capture;
    uint64_t baseline = vqtest::outstandingAllocations();
    std::unique_ptr<Shell> shell;
};

}  // namespace shelltest
