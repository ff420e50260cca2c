// Faults the registry fuzzer found, each pinned by the input that showed it.
#include <string>
#include <vector>

#include "diag/registry.h"
#include "support/test_support.h"
#include "vq6192/eth.h"

namespace {

using vq::diag::ArgKind;
using vq::diag::ArgValue;
using vq6192::sim::BusAccess;
using vq6192::sim::BusOp;

class FuzzRegression : public vqtest::ChipTest {
  protected:
    // Runs a registry command the way the shell does: byte strings and lists padded with zeros to the
    // registry's minimum length, the buffer followed by a guard.
    uint32_t run(const char *name, std::vector<ArgValue> args, std::string *text, bool pad = true) {
        const vq::diag::Command *cmd = vq::diag::findCommand(name);
        EXPECT_NE(cmd, nullptr) << name;
        if (cmd == nullptr) {
            return 0;
        }
        EXPECT_EQ(args.size(), cmd->argc) << name;
        for (size_t i = 0; i < args.size(); ++i) {
            args[i].kind = cmd->kinds[i];
            if (pad && args[i].kind == ArgKind::Bytes) {
                args[i].bytes.resize(std::max(args[i].bytes.size(), vq::diag::kMinArrayElems), 0);
            }
            if (pad && args[i].kind == ArgKind::U16Array) {
                args[i].u16.resize(std::max(args[i].u16.size(), vq::diag::kMinArrayElems), 0);
            }
        }
        std::vector<char> buf(VQ6192_DIAG_BUF_SIZE + 64, '\x5A');
        buf[0] = '\0';
        const uint32_t rc = cmd->invoke(args.data(), buf.data());
        for (size_t i = VQ6192_DIAG_BUF_SIZE; i < buf.size(); ++i) {
            EXPECT_EQ(buf[i], '\x5A') << name << " wrote past its buffer";
        }
        *text = buf.data();
        return rc;
    }
};

ArgValue u32(uint32_t v) {
    ArgValue a;
    a.u32 = v;
    return a;
}
ArgValue none() {
    return ArgValue{};  // a byte string or list with no elements: a null pointer
}
ArgValue bytes(std::vector<uint8_t> b) {
    ArgValue a;
    a.bytes = std::move(b);
    return a;
}

// Setters that unpack a byte string or list into the operation's record read a null pointer as the
// record; they now hand the operation a null record, which it refuses as a parameter error (ETH
// module 5, error 1) before touching the chip.
TEST_F(FuzzRegression, NullRecordsAreParameterErrors) {
    constexpr uint32_t kEthParaErr = 0x03050001;  // chip 3, module ETH, error 1
    struct Case {
        const char *name;
        std::vector<ArgValue> args;
        const char *line;
    };
    const Case cases[] = {
        {"setpsnethinfo", {u32(kChip), u32(0), u32(1), none()}, "        setpsnethinfo() FAIL\n"},
        {"modifypsnethinfo",
         {u32(kChip), u32(0), u32(1), none(), bytes({1, 2})},
         "        modifypsnethinfo() FAIL\n"},
        {"modifypsnethinfo",
         {u32(kChip), u32(0), u32(1), bytes({1, 2}), none()},
         "        modifypsnethinfo() FAIL\n"},
        {"setpmuptnctrl", {u32(kChip), none(), bytes({1})}, "        setpmuptnctrl() FAIL\n"},
        {"setpmuptnctrl", {u32(kChip), bytes({1}), none()}, "        setpmuptnctrl() FAIL\n"},
        {"setmacattr", {u32(kChip), u32(1), none(), none()}, "        setmacattr() FAIL\n"},
    };
    model.setTrace(true);
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        model.clearTrace();
        capture.clear();
        std::vector<ArgValue> args = c.args;
        // Only the empty arguments stay null; the others are padded as the shell pads them.
        for (ArgValue &a : args) {
            if (!a.bytes.empty()) {
                a.bytes.resize(vq::diag::kMinArrayElems, 0);
            }
        }
        std::string text;
        EXPECT_EQ(run(c.name, args, &text, false), kEthParaErr);
        EXPECT_EQ(text, c.line);
        EXPECT_TRUE(model.trace().empty());
        EXPECT_EQ(capture.traceTexts(), std::vector<std::string>{"ParaErr.\r\n"});
    }
}

// A PPP protocol packet may be up to 4095 bytes long whatever the shell parsed: the packet is the
// given bytes followed by zeros, never what lies past them in memory.
TEST_F(FuzzRegression, LongProtocolPacketFromShortByteString) {
    model.setTrace(true);
    std::string text;
    ASSERT_EQ(run("insertpppprotocolpkt", {u32(kChip), bytes({0xAB, 0xCD, 0xEF}), u32(4095)}, &text), 0u);
    EXPECT_EQ(text, "        insertpppprotocolpkt() OK\n");
    std::vector<uint32_t> data;
    uint32_t length = 0;
    for (const BusAccess &a : vqtest::writes(model.trace())) {
        if (a.addr == 0x8158) {
            data.push_back(a.value);
        } else if (a.addr == 0x8160) {
            length = a.value;
        }
    }
    ASSERT_EQ(data.size(), 2048u);  // (4095 + 1) / 2 words, first byte in the high half
    EXPECT_EQ(data[0], 0xABCDu);
    EXPECT_EQ(data[1], 0xEF00u);
    EXPECT_EQ(std::count(data.begin() + 2, data.end(), 0u), 2046);
    EXPECT_EQ(length & 0xFFF, 4095u);
}

}  // namespace
