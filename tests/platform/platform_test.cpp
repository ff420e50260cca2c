// The platform layer: bounded functions, memory accounting and injection, semaphores, delays, the
// virtual clock and the log.
#include <dlfcn.h>
#include <signal.h>
#include <sys/time.h>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <cwchar>
#include <functional>
#include <string>
#include <vector>

#include "platform/osal.h"
#include "platform/text_builder.h"
#include "support/test_support.h"

namespace {

using vqtest::PlatformCapture;

TEST(Bounded, FormatterTruncatesAndReportsWhatItWrote) {
    char buf[8];
    EXPECT_EQ(vq::snprintf_truncated_s(buf, sizeof buf, "%s", "abc"), 3);
    EXPECT_STREQ(buf, "abc");
    EXPECT_EQ(vq::snprintf_truncated_s(buf, sizeof buf, "%s", "abcdefghij"), 7);
    EXPECT_STREQ(buf, "abcdefg");
    EXPECT_EQ(vq::snprintf_truncated_s(nullptr, 8, "x"), -1);
    EXPECT_EQ(vq::snprintf_truncated_s(buf, 0, "x"), -1);
    EXPECT_EQ(vq::snprintf_truncated_s(buf, 1, "x"), 0);
    EXPECT_STREQ(buf, "");
    // A wide character the C locale cannot convert makes the formatter fail: empty text, -1.
    std::memset(buf, 'x', sizeof buf);
    EXPECT_EQ(vq::snprintf_truncated_s(buf, sizeof buf, "%lc", static_cast<wint_t>(0x20AC)), -1);
    EXPECT_STREQ(buf, "");
}

TEST(Bounded, MemoryAndStringCopiesRefuseOverruns) {
    char dst[4] = {'x', 'x', 'x', 'x'};
    EXPECT_NE(vq::memcpy_s(dst, 3, "abcd", 4), 0);
    EXPECT_EQ(dst[0], 'x');
    EXPECT_EQ(vq::memcpy_s(dst, 4, "abcd", 4), 0);
    EXPECT_EQ(std::memcmp(dst, "abcd", 4), 0);
    EXPECT_NE(vq::memset_s(dst, 3, 0, 4), 0);
    EXPECT_EQ(vq::memset_s(dst, 4, 0, 4), 0);
    EXPECT_EQ(vq::strncpy_s(dst, sizeof dst, "abc", 10), 0);
    EXPECT_STREQ(dst, "abc");
    EXPECT_NE(vq::strncpy_s(dst, sizeof dst, "abcd", 10), 0);
    EXPECT_STREQ(dst, "");
    EXPECT_EQ(vq::strncpy_s(dst, sizeof dst, "abcdef", 2), 0);
    EXPECT_STREQ(dst, "ab");
    // A one-byte destination holds the empty text; no destination at all is refused untouched.
    EXPECT_EQ(vq::strncpy_s(dst, 1, "", 5), 0);
    EXPECT_STREQ(dst, "");
    dst[0] = 'x';
    EXPECT_NE(vq::strncpy_s(dst, 0, "", 5), 0);
    EXPECT_EQ(dst[0], 'x');
}

// Cut and empty reports as the commands show them: tests/diag/layout_test.cpp.
TEST(Bounded, TextBuilderNeverPassesTheBuffer) {
    std::string buf(64, '\xEE');
    vq::TextBuilder text(buf.data(), 16);
    for (int i = 0; i < 10; ++i) {
        text.add("line %d\n", i);
    }
    EXPECT_EQ(text.length(), 15u);
    EXPECT_EQ(std::string(buf.c_str()), "line 0\nline 1\nl");
    EXPECT_EQ(buf[16], '\xEE');
    EXPECT_FALSE(text.failed());
    EXPECT_TRUE(vq::TextBuilder(buf.data(), 8).add("%lc", static_cast<wint_t>(0x20AC)).failed());
    buf[0] = '\xEE';
    vq::TextBuilder oneByte(buf.data(), 1);
    EXPECT_EQ(buf[0], '\0') << "a one-byte buffer holds the empty text";
    vq::TextBuilder none(nullptr);
    EXPECT_EQ(none.add("ignored").length(), 0u);
    EXPECT_FALSE(vq::TextBuilder(buf.data(), 0).add("x").failed()) << "no room is not a formatting failure";
}

TEST(Memory, AccountsPerTagAndInjectsFailures) {
    PlatformCapture capture;
    using U64s = std::vector<uint64_t>;
    // Allocations, frees, failures, outstanding blocks, bytes in use, since `was`.
    auto since = [](const char *tag, const U64s &was = U64s(5, 0)) {
        VQ6192_MEM_STATS s{};
        VQ6192_Platform_GetMemStats(tag, &s);
        U64s now = {s.ullAllocs, s.ullFrees, s.ullFailed, s.ullOutstanding, s.ullBytesInUse};
        std::transform(now.begin(), now.end(), was.begin(), now.begin(), std::minus<>());
        return now;
    };
    const U64s before = since("vq6192_test_tag"), all = since(nullptr);
    void *a = vq::_drv_malloc(100, "vq6192_test_tag", 1);
    void *b = vq::_drv_malloc(28, "vq6192_test_two", 2);
    EXPECT_EQ(since("vq6192_test_tag", before), (U64s{1, 0, 0, 1, 100}));
    EXPECT_EQ(since(nullptr, all), (U64s{2, 0, 0, 2, 128})) << "every tag counts in the total";

    VQ6192_Platform_FailAllocs(1, 2);
    void *c = vq::_drv_malloc(8, "vq6192_test_tag", 3);
    EXPECT_NE(c, nullptr);
    EXPECT_EQ(vq::_drv_malloc(8, "vq6192_test_tag", 4), nullptr);
    EXPECT_EQ(vq::_drv_malloc(8, "vq6192_test_tag", 5), nullptr);
    void *d = vq::_drv_malloc(8, "vq6192_test_tag", 6);
    EXPECT_NE(d, nullptr);
    for (void *p : {a, b, c, d, static_cast<void *>(nullptr)}) {
        vq::_drv_free(p);
    }
    EXPECT_EQ(since("vq6192_test_tag", before), (U64s{3, 3, 2, 0, 0}));
    EXPECT_EQ(since(nullptr, all), (U64s{4, 4, 2, 0, 0}));
    // A block the library did not hand out is left alone, with a log line.
    alignas(16) unsigned char foreign[64] = {};
    vq::_drv_free(foreign + 32);
    ASSERT_EQ(capture.logs.size(), 1u);
    EXPECT_TRUE(capture.logs[0].text.ends_with(" was not allocated by _drv_malloc")) << capture.logs[0].text;
    EXPECT_EQ(since(nullptr, all), (U64s{4, 4, 2, 0, 0}));
}

TEST(Memory, HostAllocatorIsUsedUnderTheAccounting) {
    static int calls = 0;
    VQ6192_PLATFORM_HOOKS hooks{};
    hooks.pfnMalloc = [](void *, size_t n) -> void * { return ++calls, std::malloc(n); };
    hooks.pfnFree = [](void *, void *p) { ++calls, std::free(p); };
    VQ6192_Platform_SetHooks(&hooks);
    vq::_drv_free(vq::_drv_malloc(10, "vq6192_test_host", 1));
    VQ6192_Platform_SetHooks(nullptr);
    EXPECT_EQ(calls, 2);
}

TEST(Semaphore, IsBinaryAndHonoursInjectedFailures) {
    alignas(16) unsigned char block[VQ6192_SEM_BLOCK_SIZE] = {};
    ASSERT_EQ(vq::DrvSemBCreate(block, 1), 0u);
    auto take = [&](uint32_t ticks) { return vq::iof_sema_timewait(block, ticks) == 0; };
    auto give = [&] { return vq::iof_sema_post(block) == 0; };
    using Oks = std::vector<bool>;
    // Held, a zero time-out fails at once; a second give leaves it free, not doubly free.
    EXPECT_EQ((Oks{take(0), take(0), give(), give(), take(0), take(0), give()}),
              (Oks{true, false, true, true, true, false, true}));
    VQ6192_Platform_FailSemTakes(1, 1);  // the injected failure does not wait its 600 ticks
    EXPECT_EQ((Oks{take(0), give(), take(600)}), (Oks{true, true, false}));
    VQ6192_Platform_FailSemGives(0, 1);  // an injected give failure still releases
    EXPECT_EQ((Oks{take(0), give(), take(0), give()}), (Oks{true, false, true, true}));
    // Created taken (initial 0): a take fails until the first give.
    alignas(16) unsigned char taken[VQ6192_SEM_BLOCK_SIZE] = {};
    ASSERT_EQ(vq::DrvSemBCreate(taken, 0), 0u);
    EXPECT_EQ((Oks{vq::iof_sema_timewait(taken, 0) == 0, vq::iof_sema_post(taken) == 0,
                   vq::iof_sema_timewait(taken, 0) == 0, vq::DrvSemDelete(taken) == 0}),
              (Oks{false, true, true, true}));
    VQ6192_Platform_FailSemCreates(0, 1);
    alignas(16) unsigned char other[VQ6192_SEM_BLOCK_SIZE] = {};
    EXPECT_NE(vq::DrvSemBCreate(other, 1), 0u);
    EXPECT_EQ(vq::DrvSemDelete(block), 0u);
    EXPECT_NE(vq::iof_sema_timewait(nullptr, 0), 0u);
}

// On a host's semaphores the chip lock is created free (initial count 1) and binary.
TEST(Semaphore, ChipLockOnHostSemaphoresIsCreatedFreeAndBinary) {
    static std::vector<uint32_t> initials;
    VQ6192_PLATFORM_HOOKS hooks{};
    hooks.pfnSemCreate = [](void *, void *b, uint32_t initial) {
        initials.push_back(*static_cast<uint32_t *>(b) = initial);
        return 0u;
    };
    hooks.pfnSemDelete = [](void *, void *) { return 0u; };
    hooks.pfnSemTake = [](void *, void *b, uint32_t) {
        uint32_t &count = *static_cast<uint32_t *>(b);
        return count == 0 ? 1u : (--count, 0u);
    };
    hooks.pfnSemGive = [](void *, void *b) { return *static_cast<uint32_t *>(b) = 1, 0u; };
    hooks.pfnLog = [](void *, uint32_t, const char *) {};  // the refused take's log line
    VQ6192_Platform_SetHooks(&hooks);
    {
        vq6192::sim::ChipModel model;
        model.attach(5);
        VQ6192_INSTALL_PARA para = model.installPara(5);
        ASSERT_EQ(VQ6192_Install_SDK(&para), 0u);
        EXPECT_EQ(initials, std::vector<uint32_t>{1});
        EXPECT_EQ(
            (std::vector<uint32_t>{VQ6192_GetArbitrateFunc(5, 0, 0), VQ6192_GetArbitrateFunc(5, 0, 0) != 0,
                                   VQ6192_GiveArbitrateFunc(5, 0, 0)}),
            (std::vector<uint32_t>{0, 1, 0}))
            << "a second take while held fails";
        VQ6192_UnInstall_SDK(5);
    }
    VQ6192_Platform_SetHooks(nullptr);
}

// Without file functions the dump's file hooks do nothing and succeed, leaving the handle 0.
TEST(DumpFiles, WithoutFileFunctionsEachHookDoesNothingAndReturns0) {
    VQ6192_Platform_SetFileHooks(nullptr);
    uintptr_t handle = 0;
    // A braced list calls them in order: the write takes the handle the open left.
    EXPECT_EQ(
        (std::vector<uint32_t>{vq6192_fileopen_func("f", "wb", &handle),
                               vq6192_filewrite_func("abc", 1, 3, handle), vq6192_fileclose_func(&handle)}),
        (std::vector<uint32_t>{0, 0, 0}));
    EXPECT_EQ(handle, 0u);
}

TEST(Clock, VirtualClockTotalsEveryWaitAndHostHooksTakeTheRest) {
    {
        PlatformCapture capture;  // installs the virtual clock
        const auto start = std::chrono::steady_clock::now();
        vq::DrvDelayUs(1500);
        vq::OSK_TaskDelay(300);  // 3 s at 10 ms a tick
        vq::DrvDelayUs(2);
        EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 3001502u);
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(100));
        EXPECT_EQ(VQ6192_Platform_GetTickUs(), 10000u);
        VQ6192_Platform_ResetVirtualTime();
        EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 0u);
    }
    static uint64_t slept = 0, ticks = 0;
    VQ6192_PLATFORM_HOOKS hooks{};
    hooks.pfnDelayUs = [](void *, uint32_t us) { slept += us; };
    hooks.ulTickUs = 1000;
    VQ6192_Platform_SetHooks(&hooks);
    VQ6192_Platform_SetVirtualClock(0);
    vq::DrvDelayUs(7);
    vq::OSK_TaskDelay(3);  // no tick hook: through the microsecond delay at 1 ms a tick
    EXPECT_EQ(slept, 3007u);
    hooks.pfnTaskDelay = [](void *, uint32_t t) { ticks += t; };
    VQ6192_Platform_SetHooks(&hooks);
    vq::OSK_TaskDelay(5);
    EXPECT_EQ(ticks, 5u);
    VQ6192_Platform_SetHooks(nullptr);
}

void onAlarm(int) {}

// The requests of every real sleep of the process, so that a resumed sleep can be told from a
// restarted one.
std::vector<timespec> g_sleepRequests;

}  // namespace

extern "C" int nanosleep(const timespec *req, timespec *rem) {
    g_sleepRequests.push_back(*req);
    static const auto real =
        reinterpret_cast<int (*)(const timespec *, timespec *)>(dlsym(RTLD_NEXT, "nanosleep"));
    return real(req, rem);
}

namespace {

TEST(Clock, RealDelayResumesAfterASignal) {
    // The one real sleep of the suite: 30 ms, interrupted after 5 ms by a signal whose handler does
    // not restart system calls. The delay must still last its whole time.
    VQ6192_Platform_SetHooks(nullptr);
    VQ6192_Platform_SetVirtualClock(0);
    struct sigaction sa {};
    sa.sa_handler = onAlarm;
    struct sigaction old {};
    ASSERT_EQ(sigaction(SIGALRM, &sa, &old), 0);
    itimerval timer{};
    timer.it_value.tv_usec = 5000;
    ASSERT_EQ(setitimer(ITIMER_REAL, &timer, nullptr), 0);
    g_sleepRequests.clear();
    auto start = std::chrono::steady_clock::now();
    vq::DrvDelayUs(30000);
    auto elapsed = std::chrono::steady_clock::now() - start;
    sigaction(SIGALRM, &old, nullptr);
    EXPECT_GE(elapsed, std::chrono::milliseconds(30));
    // Resumed with what was left, not started again.
    ASSERT_GE(g_sleepRequests.size(), 2u);
    EXPECT_EQ((std::vector<long>{g_sleepRequests[0].tv_sec, g_sleepRequests[0].tv_nsec}),
              (std::vector<long>{0, 30000000}));
    EXPECT_LT(g_sleepRequests[1].tv_nsec, 30000000) << "the second request is the remainder";
}

TEST(Log, MaskFiltersAndSinkReceivesTheFormattedLine) {
    {
        PlatformCapture capture;
        VQ6192_Platform_SetLogMask(2);
        vq::PIC_DbgLog(2, "chip %d pwe3 card out", 4);
        vq::PIC_DbgLog(256, "filtered %d", 1);
        VQ6192_Platform_SetLogMask(0xFFFFFFFFu);
        vq::PIC_DbgLog(256, "passes");
        ASSERT_EQ(capture.logs.size(), 2u);
        EXPECT_EQ(capture.logs[0].text, "chip 4 pwe3 card out");
        EXPECT_EQ(capture.logs[0].mask, 2u);
        EXPECT_EQ(capture.logs[1].text, "passes");
    }
    // Without a sink: standard error, a line each (a text that ends its line gets no second newline).
    VQ6192_Platform_SetHooks(nullptr);
    testing::internal::CaptureStderr();
    vq::PIC_DbgLog(2, "chip %d pwe3 card out", 1);
    vq::PIC_DbgLog(2, "ends its line\n");
    vq::PIC_DbgLog(2, "%s", "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "chip 1 pwe3 card out\nends its line\n\n");
}

}  // namespace
