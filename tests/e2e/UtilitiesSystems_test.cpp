// What the utilities page does must hold on each of the systems that the program is made for.
#include "ActiveXKeys.h"
#include "AskInside.h"
#include "UtilitiesTest.h"

namespace velkarix::e2e {
namespace {

class EverySystemUtilities : protected ActiveXKeys, public UtilitiesTest {};

TEST_F(EverySystemUtilities, ToolsAreStartedAndControlsKeptOutAndLetIn) {
    OpenUtilities();
    EXPECT_EQ(AskInside(Running().Main(), CutTextsQuestion), "");
    for (const auto& [button, tool] :
         {std::pair("cmdHosts", "Tesselin"), std::pair("cmdRepairLSP", "Quillate"),
          std::pair("cmdUpdateDefinition", "Morvane")}) {
        const std::string start = RecordOf("\"" + install_.Path(tool) + ".exe\"");
        ClickOn(button);
        EXPECT_EQ(Recorded(tool, start), start);
    }
    ClickOn("cmdActiveXProtect");
    ExpectMessage("Protection activated Successfully.", Icon::Information);
    EXPECT_EQ(ReadKeys(), WithFlags(ListedControls(install_)));
    ClickOn("cmdActiveXRemove");
    ExpectMessage("Protection removed Successfully.", Icon::Information);
    EXPECT_EQ(ReadKeys(), KeysBefore());
}

}  // namespace
}  // namespace velkarix::e2e
