// Creating every PPP channel and bundle after initialisation and deleting them again: the link types,
// enables, memberships, queue enables, timeslot entries and member counts are back where
// initialisation left them.
#include <map>

#include "ppp_fixture.h"

namespace {

using namespace ppptest;

constexpr uint32_t kTributaries = 336;

class LifecycleTest : public PppTest {
  protected:
    // The state a create and delete must give back, entry by entry.
    std::map<std::string, uint64_t> snapshot() {
        std::map<std::string, uint64_t> s;
        auto put = [&](const char *what, uint32_t index, uint64_t value) {
            s[std::string(what) + "/" + std::to_string(index)] = value;
        };
        for (uint32_t ch = 0; ch < 512; ++ch) {
            put("Mprxmhdlccfg1", ch, entry(kHdlccfg1, ch));
            put("Mprxmhdlccfg2.type", ch, entry(kHdlccfg2, ch) >> 8);
            put("Linkcfg.member", ch, entry(kLinkcfg, ch) & 0x3);  // Linkmpen, Linkpppen
            put("Tppucfg.Chcen", ch, entry(kTppucfg, ch) >> 12 & 1u);
            put("Qmencfg", ch, entry(kQmencfg, ch));
            put("Pppencfg", ch / 2, entry(kPppencfg, ch / 2));
            put("count", ch / 2, g_vq6192[kChip].aulMpChanCnt[ch / 2]);
            put("bundle enable", ch / 32, model.peek(0x13240 + 2 * (ch / 32)));
            put("group reset", ch / 32, model.peek(0x13080 + 2 * (ch / 32)));
        }
        for (uint32_t i = 0; i < kTributaries * 32; ++i) {
            put("ts in", i, tsEntry(0, i / 32, i % 32) == 0 ? 0x7800 : tsEntry(0, i / 32, i % 32));
            put("ts out", i, tsEntry(1, i / 32, i % 32) == 0 ? 0x7800 : tsEntry(1, i / 32, i % 32));
        }
        return s;
    }
};

TEST_F(LifecycleTest, EveryChannelAndBundleCreatedAndDeleted) {
    VQ6192_Set_Printf_Flag(kChip, VQ6192_MODULE_PPP, 14);
    ASSERT_EQ(VQ6192_PPP_InitPppModule(kChip, 1), 0u);
    const auto before = snapshot();
    auto tsMap = [](uint32_t ch) { return ch < kTributaries ? 0x0000FFFEu : 0xFFFF0000u; };
    for (uint32_t ch = 0; ch < 512; ++ch) {
        const VQ6192_PPP_CHAN_S c{ch % kTributaries, ch, tsMap(ch), 3};
        ASSERT_EQ(VQ6192_PPP_CreatePppChan(kChip, &c), 0u) << ch;
        ASSERT_EQ(VQ6192_PPP_SetPppChanEnable(kChip, ch, 1, 2), 0u);
    }
    for (uint32_t b = 0; b < 256; ++b) {
        ASSERT_EQ(VQ6192_PPP_AddPppChanToMp(kChip, 2 * b, b, 2), 0u);
        ASSERT_EQ(VQ6192_PPP_AddPppChanToMp(kChip, 2 * b + 1, b, 2), 0u);
        ASSERT_EQ(VQ6192_PPP_SetMpBundleEnable(kChip, b, 1, 2), 0u);
    }
    EXPECT_EQ(g_vq6192[kChip].aulMpChanCnt[200], 2u);
    EXPECT_EQ(entry(kQmencfg, 256 + 200), 0xFFu);
    for (uint32_t b = 0; b < 256; ++b) {
        ASSERT_EQ(VQ6192_PPP_RemovePppChanFromMp(kChip, 2 * b, b, 2), 0u);
        ASSERT_EQ(VQ6192_PPP_RemovePppChanFromMp(kChip, 2 * b + 1, b, 2), 0u);
        ASSERT_EQ(VQ6192_PPP_DelMpBundle(kChip, b), 0u);
    }
    for (uint32_t ch = 0; ch < 512; ++ch) {
        ASSERT_EQ(VQ6192_PPP_SetPppChanEnable(kChip, ch, 0, 2), 0u);
        ASSERT_EQ(VQ6192_PPP_DelPppChan(kChip, ch, static_cast<uint16_t>(ch % kTributaries), tsMap(ch)), 0u);
    }
    const auto after = snapshot();
    for (const auto &[key, value] : before) {
        EXPECT_EQ(after.at(key), value) << key;
    }
    EXPECT_EQ(model.block<vq6192::sim::PppBlock>().channelResets().size(), 512u);
}

}  // namespace
