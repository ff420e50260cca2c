// The diagnostic suite's fixture: a chip on the model, the 48128-byte buffer, the shared layouts and checks.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "diag/registry.h"
#include "support/test_support.h"

namespace diagtest {

// Framed values: chip, SDH, framer and CES reports draw their separator after an 'n', the others after
// a newline.
inline const std::string kNSep = "n-------------------------------------------------\n";
inline const std::string kLSep = "\n-------------------------------------------------\n";

inline std::string framed(const std::string &title, const std::string &lines,
                          const std::string &sep = kNSep) {
    return sep + "        " + title + "\n" + sep + lines + sep;
}

// A registry command's arguments: the chip first, the others zero, arrays at their shortest.
inline std::vector<vq::diag::ArgValue> argsOf(const vq::diag::Command &cmd, uint32_t chip) {
    std::vector<vq::diag::ArgValue> args(cmd.argc);
    for (size_t k = 0; k < args.size(); ++k) {
        args[k].kind = cmd.kinds[k];
        args[k].bytes.resize(vq::diag::kMinArrayElems);
        args[k].u16.resize(vq::diag::kMinArrayElems);
    }
    if (!args.empty()) {
        args[0].u32 = chip;
    }
    return args;
}

// Several outputs in one comparison: EXPECT_EQ(ints(mode, value), ints(1, 0x5A)).
template <typename... T>
std::vector<int> ints(T... v) {
    return {static_cast<int>(v)...};
}

// A report: the command run into the buffer, the exact text and status it gives.
struct Report {
    std::function<uint32_t(char *)> cmd;
    std::string expected;
    uint32_t status = 0;
};

// A command called without a buffer: the status it returns, and whether it still queries the chip.
struct Unbuffered {
    const char *what;
    std::function<uint32_t()> cmd;
    bool queries;
    uint32_t status;
};

class DiagTest : public vqtest::ChipTest {
  protected:
    std::vector<char> buf = std::vector<char>(VQ6192_DIAG_BUF_SIZE, '#');
    std::string text() const { return buf.data(); }

    // The text of a command run into the buffer, its status in *status.
    std::string run(const std::function<uint32_t(char *)> &cmd, uint32_t *status = nullptr) {
        std::fill(buf.begin(), buf.end(), '#');
        const uint32_t rc = cmd(buf.data());
        if (status != nullptr) {
            *status = rc;
        }
        return buf.data();
    }

    void expectReports(const std::vector<Report> &rows) {
        for (const Report &r : rows) {
            SCOPED_TRACE(r.expected.substr(0, 80));
            uint32_t rc = 1;
            EXPECT_EQ(run(r.cmd, &rc), r.expected);
            EXPECT_EQ(rc, r.status);
        }
    }

    void expectUnbuffered(const std::vector<Unbuffered> &cases) {
        for (const auto &c : cases) {
            model.clearTrace();
            model.setTrace(true);
            EXPECT_EQ(c.cmd(), c.status) << c.what;
            model.setTrace(false);
            EXPECT_EQ(!model.trace().empty(), c.queries)
                << c.what << ": " << model.trace().size() << " accesses";
        }
    }
};

}  // namespace diagtest
