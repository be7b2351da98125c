// Every call of the typed layer as it stands on the wire, its end included.
#include <gtest/gtest.h>
#include <tests/support/RecordingToolkit.h>
#include <uicomps/toolkit/CellCalls.h>
#include <uicomps/toolkit/ComponentCalls.h>
#include <uicomps/toolkit/DeviceCalls.h>
#include <uicomps/toolkit/ImageCalls.h>

namespace oxecad_ui::wire {
namespace {

using test_support::Calling;
using test_support::Doing;
using test_support::RecordingToolkit;

constexpr Widget kTree{"dev", "tree"};

class Calls : public testing::Test {
 protected:
  RecordingToolkit toolkit;
};

TEST_F(Calls, OnNodes) {
  void* const data = reinterpret_cast<void*>(0xff);
  EXPECT_TRUE(AddNode(kTree, "n", L"N", "p", "t", {L"2", 1, 2, 3, data}));
  EXPECT_TRUE(AddNodeBefore(kTree, "n", L"N", "p", "b", "t", {L"2", 1, 2, 3, data}));
  EXPECT_TRUE(InsertNode(kTree, "n", L"N", "p", "b", "t", {L"2", 1, 2, 3, data}));
  EXPECT_TRUE(DeleteNode(kTree, "n"));
  EXPECT_TRUE(MoveNode(kTree, "n", "p", nullptr));
  EXPECT_TRUE(ExpandNode(kTree, "n", ExpandDepth::Node));
  EXPECT_TRUE(ExpandNode(kTree, "n", ExpandDepth::Subtree));
  EXPECT_TRUE(CollapseNode(kTree, "n"));
  EXPECT_TRUE(SetNode(kTree, "n", kNodeLabel(L"L"), kNodeUserValue(7)));
  EXPECT_TRUE(ChangeNode(kTree, "n", kChangeType("mix"), kChangeUserValue(0xFFFFFFFFu)));
  EXPECT_TRUE(std::get<0>(GetNode(kTree, "n", kNodeExpanded)));
  EXPECT_TRUE(std::get<0>(InquireNode(kTree, "n", kNodeChildren)));
  EXPECT_TRUE(std::get<0>(QueryNode(kTree, "n", kAddExpanded)));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2029 AddNode "n" L"N" "p" "t" | 2=L"2" 128=1 256=2 512=3 1024=0xff | 0
    do dev:tree 2030 AddNodeBefore "n" L"N" "p" "b" "t" | 2=L"2" 128=1 256=2 512=3 1024=0xff | 0
    do dev:tree 2331 InsertNode "b" "n" | 2=L"N" 283="p" 282="t" 25=L"2" 3=1 4=2 516=3 260=0xff | 0
    do dev:tree 2031 DeleteNode "n" | 0
    do dev:tree 2032 MoveNode "n" "p" null
    do dev:tree 2036 ExpandNode "n" 0 | 0
    do dev:tree 2036 ExpandNode "n" 1 | 0
    do dev:tree 2037 CollapseNode "n" | 0
    do dev:tree 2201 SetNode "n" | 2=L"L" 260=0x7 | 0
    do dev:tree 2033 ChangeNode "n" | 8="mix" 1024=0xffffffff | 0
    do dev:tree 2202 GetNode "n" | 4->0 | 0
    do dev:tree 2203 InquireNode "n" | 284->[] | 0
    do dev:tree 2034 QueryNode "n" | 256->0 | 0)"));
}

TEST_F(Calls, OnCellsAndControls) {
  EXPECT_TRUE(CreateControl(kTree, "box", "CheckButton"));
  EXPECT_TRUE(DestroyControl(kTree, "box"));
  EXPECT_TRUE(SetCell(kTree, {"n", "a"}, kCellLabel(L"L")));
  EXPECT_TRUE(SetCell(kTree, {"n", "dim"}, kCellControl("box")));
  EXPECT_TRUE(SetCellControl(kTree, {"n", "dim"}, kControlCheckState(2)));
  EXPECT_TRUE(SetCellControl(kTree, {"n", "show"}, kSelectedItem("none")));
  CellLabel(kTree, {"n", "a"});
  GetCellControl(kTree, {"n", "dim"}, kControlCheckState);
  GetCellControl(kTree, {"n", "show"}, kSelectedItem);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2053 CreateControl "box" "CheckButton" | | 0
    do dev:tree 2085 DestroyControl "box" | 0
    do dev:tree 2160 SetCell "n" "a" | 2=L"L" | 0
    do dev:tree 2160 SetCell "n" "dim" | 140="box" | 0
    do dev:tree 2163 SetCellControl "n" "dim" | 31=2 | 0
    do dev:tree 2163 SetCellControl "n" "show" | 468="none" | 0
    do dev:tree 2162 GetCell "n" "a" | 2->null | 0
    do dev:tree 2165 GetCellControl "n" "dim" | 31->4294967295 | 0
    do dev:tree 2165 GetCellControl "n" "show" | 468->null | 0)"));
}

TEST_F(Calls, OnDevices) {
  toolkit.When(Doing(2005)).GiveInOrder({-5, 20});
  toolkit.When(Doing(2003)).GiveInOrder({400, 300});
  toolkit.When(Calling(uiox::Function::ActivateDevice)).Result(32);
  toolkit.When(Calling(uiox::Function::BalloonStyle)).GiveInOrder({0x77});
  constexpr Widget device{"dlg", "dlg"};
  Position position;
  Size size;
  void* style = nullptr;
  EXPECT_TRUE(GetPosition({"dlg", "anchor"}, position));
  EXPECT_EQ(position.x, -5);
  EXPECT_EQ(position.y, 20);
  EXPECT_TRUE(GetSize({"dlg", "anchor"}, size));
  EXPECT_EQ(size.width, 400);
  EXPECT_EQ(size.height, 300);
  EXPECT_TRUE(BalloonStyle(9, style));
  EXPECT_EQ(style, reinterpret_cast<void*>(0x77));
  EXPECT_TRUE(Modify({"dlg", "ok"}, kBalloonStyle(style)));
  EXPECT_TRUE(UpdateLayout(device));
  EXPECT_TRUE(ShowDevice("dlg"));
  EXPECT_TRUE(MoveDevice(device, {-1, 100}));
  EXPECT_EQ(RunDevice("dlg"), 32);
  HideDevice("dlg");
  SelectAllText({"dlg", "field"});
  Beep();
  EXPECT_TRUE(std::get<0>(Retrieve(device, kHeight, kWidth)));
  EXPECT_TRUE(std::get<0>(Inquire(kScreenWidth, kScreenHeight)));
  EXPECT_TRUE(toolkit.Took(R"(
    do dlg:anchor 2005 GetPosition ->-5 ->20 | 0
    do dlg:anchor 2003 GetSize ->400 ->300 | 0
    balloon_style 9 ->0x77
    modify dlg:ok | 519=0x77 | 0
    do dlg:dlg 2013 UpdateLayout | 0
    manage_device "dlg"
    do dlg:dlg 2002 MoveAndResize -1 100 -32768 -32768 | 0
    activate_device "dlg" => 32
    unmanage_device "dlg"
    do dlg:field 2094 SelectText 0 4294967295 | 0
    beep
    retrieve dlg:dlg | 71->0 70->0 | 0
    global_inquire | 4001->0 4002->0 | 0)"));
}

TEST_F(Calls, CreatingADeviceReadsTheTwoOppositeResults) {
  EXPECT_TRUE(CreateDevice("d.res", "oxecad"));
  toolkit.When(Calling(uiox::Function::CreateDeviceExt)).Result(0);
  EXPECT_FALSE(CreateDevice("d.res", "oxecad"));
  toolkit.When(Calling(uiox::Function::CreateSearchPath)).Result(-1);
  EXPECT_TRUE(CreateDevice("d.res", "oxecad"));
  toolkit.When(Calling(uiox::Function::CreateDevice)).Result(1);
  EXPECT_FALSE(CreateDevice("d.res", "oxecad"));
  EXPECT_TRUE(toolkit.Took(R"(
    create_search_path 1 "oxecad" => 0
    create_device_ext "d.res" "d.res" 0 => 1
    create_search_path 1 "oxecad" => 0
    create_device_ext "d.res" "d.res" 0 => 0
    create_search_path 1 "oxecad" => -1
    create_device "d.res" "d.res"
    create_search_path 1 "oxecad" => -1
    create_device "d.res" "d.res" => 1)"));
}

TEST_F(Calls, NodeTypesAreDefinedByARecordOfNineSlots) {
  toolkit.When(Doing(2243, "known")).GiveInOrder({-1});
  EXPECT_TRUE(NodeTypeExists(kTree, "known"));
  EXPECT_FALSE(NodeTypeExists(kTree, "new"));
  EXPECT_TRUE(DefineNodeType(kTree, "square_7.png", "square_7.png"));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2243 NodeTypeExists "known" ->-1 | 0
    do dev:tree 2243 NodeTypeExists "new" ->0 | 0
    do dev:tree 2139 DefineNodeType type{"square_7.png" "square_7.png" "square_7.png"} | 0)"));
}

}  // namespace
}  // namespace oxecad_ui::wire
