// The dispatcher's ATM views: one ATM pseudowire with its labels read back through the packet side,
// and the chip-wide ATM drop counters.
#include <string>
#include <vector>

#include "atm/atm_fixture.h"
#include "vq6192/eth.h"
#include "vq6192/ima.h"

namespace {

using namespace atmtest;

constexpr uint32_t kTableTimeout = 0x030C0003;
constexpr uint32_t kEthBlock = 0x4000;  // the packet side's table access block

class AtmViewTest : public AtmTest {
  protected:
    std::vector<char> buf = std::vector<char>(VQ6192_DIAG_BUF_SIZE);
    std::string view(uint32_t type, uint32_t arg1, int32_t expect) {
        buf[0] = '\0';
        EXPECT_EQ(MCARD_IMA_Dbg_ImaHardWareInfo(kChip, type, arg1, 0, buf.data()), expect);
        return buf.data();
    }
};

std::string pwView(uint32_t labelType, uint32_t egLabel, uint32_t inLabel, int encap, uint32_t vpi,
                   uint32_t vci, unsigned cw, unsigned snChk, unsigned snAdd, unsigned long cells,
                   unsigned long wait) {
    char s[1024];
    snprintf(s, sizeof s,
             "LABEL TYPE(0 unuse, 1 MPLS, other wrong)         :           %u\r\n"
             "EGRESS LABEL       :           0x%x(%lu)\r\n"
             "INGRESS LABEL      :           0x%x(%lu)\r\n"
             "ENCAP TYPE(0,3 N:1; 1 VPC 1:1; 2 VCC 1:1)         :           %d\r\n"
             "EGRESS VPI         :           0x%x(%lu)\r\n"
             "EGRESS VCI         :           0x%x(%lu)\r\n"
             "CW  ENABLE         :           %u\r\n"
             "SN CHECK ENABLE    :           %u\r\n"
             "SN ADD ENABLE      :           %u\r\n"
             "MAX CELL NUM       :           %lu\r\n"
             "MAX WAIT TIME(ms)  :           %lu\r\n",
             labelType, egLabel, static_cast<unsigned long>(egLabel), inLabel,
             static_cast<unsigned long>(inLabel), encap, vpi, static_cast<unsigned long>(vpi), vci,
             static_cast<unsigned long>(vci), cw, snChk, snAdd, cells, wait);
    return s + std::string("The Data is VALID\r\n");
}

TEST_F(AtmViewTest, PseudowireLabelsAndSettings) {
    struct Case {
        uint32_t pw;
        ATM_PW_CFG cfg;  // byPsnEncpType 0: not created
        uint32_t cells, wait;
        std::string text;
    };
    const Case cases[] = {
        // VCC 1:1 over MPLS (header type 4): label type 1, the received label found in the label map.
        {300,
         {0x12, 0xABCD, 0x55, 0x77, 1, 1, 0, 2, 1},
         5,
         10,
         pwView(1, 0x55, 0x77, 2, 0x12, 0xABCD, 1, 1, 0, 5, 10)},
        // N:1 over UDP/IP (header type 7) printed as it is; pseudowires from 512 up are not searched.
        {1500, {0, 0, 0x1234, 0x99, 0, 0, 1, 0, 5}, 31, 63, pwView(7, 0x1234, 0, 0, 0, 0, 0, 0, 1, 31, 63)},
        {9, {}, 0, 0, pwView(0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0)},  // never created
    };
    for (const Case &k : cases) {
        SCOPED_TRACE(k.pw);
        if (k.cfg.byPsnEncpType != 0) {
            ASSERT_EQ(VQ6192_ATM_CreateAtmPw(kChip, k.pw, &k.cfg), 0u);
            ASSERT_EQ(VQ6192_ATM_SetAtmPwCellConcAttr(kChip, k.pw, k.cells, k.wait), 0u);
        }
        const uint64_t atmWrites = model.tables().writesExecuted(kAtmBlock);
        const uint64_t ethWrites = model.tables().writesExecuted(kEthBlock);
        EXPECT_EQ(view(9, k.pw, 0), k.text);
        EXPECT_EQ(model.tables().writesExecuted(kAtmBlock), atmWrites) << "a view writes no entry";
        EXPECT_EQ(model.tables().writesExecuted(kEthBlock), ethWrites);
    }
}

TEST_F(AtmViewTest, PseudowireFailuresPrintInvalid) {
    // PW 2048 is refused by every read: the status is theirs, ORed.
    model.clearTrace();
    EXPECT_NE(
        view(9, 2048, static_cast<int32_t>(kPara | 0x03050001)).find("The Data is INVALID. 0x3070001\r\n"),
        std::string::npos);
    EXPECT_TRUE(model.trace().empty()) << "refused before any access";
    // A pseudowire table read that never completes.
    model.tables().failCommand(kAtmBlock, 1);
    const std::string t = view(9, 100, static_cast<int32_t>(kTableTimeout));
    EXPECT_NE(t.find("The Data is INVALID. 0x30C0003\r\n"), std::string::npos) << t;
}

TEST_F(AtmViewTest, DropCountersInTheStatisticsLayout) {
    // The 21 counters in their reading order, each register holding its order + 1.
    const uint32_t regs[21] = {0xA400, 0xA402, 0xA404, 0xA406, 0xA416, 0xA418, 0xA40A,
                               0xA40C, 0xA40E, 0xA410, 0xA412, 0xA408, 0xA41A, 0xA268,
                               0xA26A, 0xA2C8, 0xA2C6, 0xA2C4, 0xA2C2, 0xA2F2, 0xA2F4};
    for (uint32_t i = 0; i < 21; ++i) {
        model.poke(regs[i], static_cast<uint16_t>(i + 1));
    }
    const std::string t = view(10, 0, 0);
    EXPECT_EQ(t.rfind("    GetAtmDropStat()\n", 0), 0u) << t;
    EXPECT_NE(
        t.find(
            "    | wRedDrop         :        1 | wFdDrop          :        2 | wPfdDrop         :        3 \n"
            "    | wClpDrop         :        4 | wFdAll5Drop      :        5 | wPfdAll5Drop     :        6 "
            "\n"),
        std::string::npos)
        << t;
    EXPECT_NE(t.find("| wNoVldRx         :       20 | wNoVldTx         :       21 \n    PRINT_END\n"),
              std::string::npos)
        << t;
}

}  // namespace
