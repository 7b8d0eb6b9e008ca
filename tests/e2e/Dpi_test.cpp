// At another resolution of the screen everything grows with the text.
#include <cstdlib>

#include "AskInside.h"
#include "ProgramTest.h"

namespace velkarix::e2e {
namespace {

// Programs that start meanwhile find another resolution in the registry.
class Resolution {
  public:
    explicit Resolution(DWORD dotsPerInch) {
        RegCreateKeyA(HKEY_CURRENT_USER, "Control Panel\\Desktop", &key_);
        DWORD size = sizeof before_;
        hadValue_ = RegQueryValueExA(key_, Value, nullptr, nullptr,
                                     reinterpret_cast<BYTE*>(&before_), &size) == ERROR_SUCCESS;
        Set(dotsPerInch);
    }
    ~Resolution() {
        if (hadValue_) {
            Set(before_);
        } else {
            RegDeleteValueA(key_, Value);
        }
        RegCloseKey(key_);
    }
    Resolution(const Resolution&) = delete;
    Resolution& operator=(const Resolution&) = delete;

  private:
    static constexpr const char* Value = "LogPixels";
    void Set(DWORD value) const {
        RegSetValueExA(key_, Value, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&value),
                       sizeof value);
    }
    HKEY key_ = nullptr;
    DWORD before_ = 0;
    bool hadValue_ = false;
};

SIZE SizeOf(const Window& window) {
    const RECT area = window.Area();
    return {area.right - area.left, area.bottom - area.top};
}

class Dpi : public ProgramTest {
  protected:
    static bool Within(const Window& inner, const Window& outer) {
        const RECT in = inner.Area();
        const RECT out = outer.Area();
        return in.left >= out.left && in.top >= out.top && in.right <= out.right &&
               in.bottom <= out.bottom;
    }
};

TEST_F(Dpi, EverythingIsHalfAsLargeAgainAt144DotsAnInch) {
    Start();
    const SIZE button = SizeOf(Running().Control("cmdRefresh"));
    const SIZE page = SizeOf(Running().Control("cmdIE"));
    ASSERT_EQ(Running().Close(), 0u);

    const Resolution resolution(144);
    Start();
    const auto grown = [](LONG now, LONG before) {
        return std::abs(now * 100 / before - 150) < 15;
    };
    EXPECT_TRUE(grown(SizeOf(Running().Control("cmdRefresh")).cy, button.cy));
    EXPECT_TRUE(grown(SizeOf(Running().Control("cmdIE")).cy, page.cy));
    for (const Window& child : Running().Main().Children()) {
        EXPECT_TRUE(child.Name().empty() || Within(child, Running().Main())) << child.Name();
    }
    EXPECT_EQ(AskInside(Running().Main(), CutTextsQuestion), "");
    EXPECT_TRUE(List().Find("SampleIdle.exe"));
}

TEST_F(Dpi, ThePageWithTheMostWordsShowsThemAll) {
    for (const DWORD dotsPerInch : {120u, 144u}) {
        const Resolution resolution(dotsPerInch);
        Start();
        ASSERT_TRUE(Running().Press("cmdUtilities"));
        const Window page = Running().Control("frmUtilities");
        for (const Window& child : page.Children()) {
            EXPECT_TRUE(Within(child, page)) << child.Text() << " at " << dotsPerInch;
        }
        EXPECT_EQ(AskInside(Running().Main(), CutTextsQuestion), "") << dotsPerInch;
        ASSERT_EQ(Running().Close(), 0u);
    }
}

}  // namespace
}  // namespace velkarix::e2e
