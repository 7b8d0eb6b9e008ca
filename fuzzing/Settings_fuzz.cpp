// Settings of any bytes: numbers are read as a second reader reads them, and the program starts
// with any file of settings, or tells why not.
#include <cmath>
#include <cstdlib>
#include <limits>
#include <regex>

#include "fuzzing/FuzzTarget.h"
#include "shell/Settings.h"
#include "tests/machine/TestProgram.h"

namespace velkarix {

namespace {

constexpr std::size_t LongestSetting = 254;

bool IsNear(double a, double b) {
    if (a == b) return true;
    return std::isfinite(a) && std::isfinite(b) &&
           std::abs(a - b) <= 1e-13 * std::abs(b) + std::numeric_limits<double>::min();
}

void LookAtNumber(const std::string& text) {
    static const std::regex Number("[ \t]*([+-]?([0-9]+[.]?[0-9]*|[.][0-9]+)([eE][+-]?[0-9]+)?)");
    std::smatch match;
    const bool begins =
        std::regex_search(text, match, Number, std::regex_constants::match_continuous);
    const double expected = begins ? std::strtod(match[1].str().c_str(), nullptr) : 0;
    const double number = NumericPrefix(text);
    Expect(IsNear(number, expected), "a number is read", text);

    const double nearest = std::nearbyint(number);
    const double least = std::numeric_limits<std::int32_t>::min();
    const double most = std::numeric_limits<std::int32_t>::max();
    const double rounded = nearest < least ? least : nearest > most ? most : nearest;
    Expect(RoundedNumber(text) == rounded, "a number is rounded", text);

    const std::string rest = begins ? match.suffix().str() : text;
    const bool isWhole = begins && rest.find_first_not_of(" \t") == std::string::npos;
    const std::optional<double> strict = StrictNumber(text);
    Expect(strict.has_value() == isWhole, "a number is the whole text", text);
    Expect(!strict || *strict == number, "it is the same number", text);
}

// Starts, waits for the look at the update, and opens the page that shows the settings.
void RunProgram(const std::string& settings, const std::string& database) {
    TestProgram program;
    program.AddInstalledFile("Settings.ini").Content(settings);
    program.AddInstalledFile("database.ini").Content(database);
    program.AddInstalledFile("MorVane.exe").Content("MZ");
    program.Start();
    for (const char* key : {"FontBold", "View", "SusColor"}) {
        const std::string value = program.application.settings.ReadIni("Main", key, "7");
        Expect(value.size() <= LongestSetting && value.find('\0') == std::string::npos,
               "a setting is a short text", value);
    }
    if (program.application.Ended()) {
        Expect(program.desktop.messages.size() == 1, "who can't start tells why");
        return;
    }
    Expect(program.desktop.messages.empty(), "a start is silent");
    program.application.forms.Loaded("frmMain")->Timers()[0]->Tick();
    for (const char* page : {"cmdOptions", "cmdAddremove", "cmdProcess"}) {
        program.Get<Button>("frmMain", page).Raise("Click");
    }
}

}  // namespace

void RunInput(FuzzInput& input) {
    if (input.Flag()) {
        const std::string settings = input.Text();
        RunProgram(settings, input.Text());
    } else {
        LookAtNumber(input.Rest().substr(0, LongestSetting));
    }
}

std::vector<Bytes> Seeds() {
    std::vector<Bytes> seeds;
    for (const char* text : {"", " 12", "-0.5", "+2.5e0", ".5", "5.", "1e", "1e+", "1e-400",
                             "1e999", "0x10", "1,5", "99999999999999999999.5",
                             "0.00000000000000000001e20", "2147483647.5", " \t1 \t", "&H1"}) {
        seeds.push_back(FuzzSeed().Byte(0).Rest(text));
    }
    const std::string lines[] = {
        "[Main]\r\nFirstRun=1\r\nFontBold=1\r\nSusColor=255\r\nView=3\r\nDelete=1\r\n",
        "[main]\nFontBold = \"x\"\n",
        "[Main]\r\nFontBold=40000\r\n",
        "[Main]\r\nFontBold=-32768.4\r\nFirstRun=1\r\n[Update]\r\nCheckUpdate=1\r\n",
        "FontBold=2\r\n[Main\r\n[[Main]]\r\n=\r\n",
        "[Main]\r\nSusColor=" + std::string(400, '9')};
    for (const std::string& settings : lines) {
        for (const char* date :
             {"6/1/2004", "2004-06-01 12:00", "13/13/13", "1/1/100", "31.12.99"}) {
            seeds.push_back(FuzzSeed().Byte(1).Text(settings).Text(
                "[Update]\r\nLast=" + std::string(date) + "\r\n[Database]\r\nVersion=1\r\n"));
        }
    }
    return seeds;
}

}  // namespace velkarix
