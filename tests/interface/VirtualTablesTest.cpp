// The tables of virtual members as the compiler laid them out, entry by entry. A program that was built against an
// older library calls by place: the order is a promise. The destructor fills the first two places.
#include <cxxabi.h>
#include <dlfcn.h>
#include <elf.h>
#include <gtest/gtest.h>
#include <link.h>
#include <uicomps/oxecad_ui.h>

#include <cstdlib>
#include <map>
#include <memory>
#include <string>
#include <typeinfo>
#include <vector>

namespace oxecad_ui {
namespace {

std::string Demangled(const char* symbol) {
  int status = 0;
  const std::unique_ptr<char, decltype(&std::free)> name(abi::__cxa_demangle(symbol, nullptr, nullptr, &status),
                                                         &std::free);
  return status == 0 ? name.get() : symbol;
}

/// The symbols by which a loaded library's places are filled. The compiler gives one address to members that do the
/// same, so that an address would not tell which of them is meant; the library's own table does.
class FilledPlaces {
 public:
  explicit FilledPlaces(const link_map& library) {
    const ElfW(Sym)* symbols = nullptr;
    const char* names = nullptr;
    const ElfW(Rela)* entries = nullptr;
    std::size_t bytes = 0;
    for (const ElfW(Dyn)* entry = library.l_ld; entry->d_tag != DT_NULL; ++entry) {
      if (entry->d_tag == DT_SYMTAB) symbols = reinterpret_cast<const ElfW(Sym)*>(entry->d_un.d_ptr);
      if (entry->d_tag == DT_STRTAB) names = reinterpret_cast<const char*>(entry->d_un.d_ptr);
      if (entry->d_tag == DT_RELA) entries = reinterpret_cast<const ElfW(Rela)*>(entry->d_un.d_ptr);
      if (entry->d_tag == DT_RELASZ) bytes = entry->d_un.d_val;
    }
    for (std::size_t i = 0; i < bytes / sizeof(ElfW(Rela)); ++i) {
      const ElfW(Sym)& symbol = symbols[ELF64_R_SYM(entries[i].r_info)];
      symbols_.emplace(library.l_addr + entries[i].r_offset, names + symbol.st_name);
    }
  }

  /// Empty where the place is filled without a symbol: with something that has no name outside the library.
  std::string At(const void* place) const {
    const auto found = symbols_.find(reinterpret_cast<ElfW(Addr)>(place));
    return found != symbols_.end() ? found->second : "";
  }

 private:
  std::map<ElfW(Addr), std::string> symbols_;
};

/// The names of a class's virtual members in the order of its table; "inline" for one that has no name outside the
/// library, "none" for an empty place: the destructor of an abstract class, which nobody can call by place.
template <class Class>
std::vector<std::string> TableOf() {
  const std::string symbol = std::string("_ZTV") + typeid(Class).name();
  void* const* const table = static_cast<void* const*>(dlsym(RTLD_DEFAULT, symbol.c_str()));
  if (table == nullptr) return {symbol + " is not exported"};
  Dl_info info;
  void* extra = nullptr;
  if (dladdr1(table, &info, &extra, RTLD_DL_SYMENT) == 0 || extra == nullptr) return {"its size is unknown"};
  const std::size_t entries = static_cast<const ElfW(Sym)*>(extra)->st_size / sizeof(void*);
  if (dladdr1(table, &info, &extra, RTLD_DL_LINKMAP) == 0 || extra == nullptr) return {"its library is unknown"};
  const FilledPlaces places(*static_cast<const link_map*>(extra));
  std::vector<std::string> names;
  for (std::size_t i = 2; i < entries; ++i) {  // behind the offset to the top and the type
    const std::string name = places.At(table + i);
    names.push_back(!name.empty() ? Demangled(name.c_str()) : table[i] != nullptr ? "inline" : "none");
  }
  return names;
}

using Names = std::vector<std::string>;

Names Members(std::initializer_list<const char*> names) {
  Names all;
  for (const char* name : names) {
    all.push_back(name[0] == '_' || std::string(name).rfind("ox", 0) == 0 || std::string(name) == "none"
                      ? name
                      : std::string("oxecad_ui::") + name);
  }
  return all;
}

constexpr const char* kPure = "__cxa_pure_virtual";

TEST(VirtualTables, Component) { EXPECT_EQ(TableOf<Component>(), Members({"none", "none", kPure})); }

TEST(VirtualTables, BaseTree) {
  EXPECT_EQ(TableOf<BaseTree>(),
            Members({"BaseTree::~BaseTree()", "BaseTree::~BaseTree()", "BaseTree::Init()", "BaseTree::Clear()",
                     "BaseTree::OnActivate(char const*)", "BaseTree::OnCollapse(char const*)",
                     "BaseTree::OnExpand(char const*)", "BaseTree::OnSelect(int, char**, int)"}));
}

TEST(VirtualTables, Tree) {
  EXPECT_EQ(TableOf<Tree>(), Members({"Tree::~Tree()", "Tree::~Tree()", "Tree::Init()", "BaseTree::Clear()",
                                      "BaseTree::OnActivate(char const*)", "BaseTree::OnCollapse(char const*)",
                                      "BaseTree::OnExpand(char const*)", "BaseTree::OnSelect(int, char**, int)",
                                      "Tree::OnCheck(char const*)", "Tree::AddNode(oxecad_ui::Tree::NodeInfo const&)",
                                      "Tree::GetNodeInfo(char const*, oxecad_ui::Tree::NodeInfo&) const",
                                      "Tree::GetNodeInfo(char const*) const"}));
}

TEST(VirtualTables, ColorTree) {
  EXPECT_EQ(TableOf<ColorTree>(),
            Members({"ColorTree::~ColorTree()", "ColorTree::~ColorTree()", "Tree::Init()", "BaseTree::Clear()",
                     "ColorTree::OnActivate(char const*)", "ColorTree::OnCollapse(char const*)",
                     "ColorTree::OnExpand(char const*)", "ColorTree::OnSelect(int, char**, int)",
                     "ColorTree::OnCheck(char const*)", "Tree::AddNode(oxecad_ui::Tree::NodeInfo const&)",
                     "Tree::GetNodeInfo(char const*, oxecad_ui::Tree::NodeInfo&) const",
                     "ColorTree::GetNodeInfo(char const*) const", "ColorTree::ChangeNodeColor(char const*)"}));
}

TEST(VirtualTables, EcadTree) {
  EXPECT_EQ(TableOf<EcadTree>(),
            Members({"EcadTree::~EcadTree()", "EcadTree::~EcadTree()", "Tree::Init()", "BaseTree::Clear()",
                     "EcadTree::OnActivate(char const*)", "BaseTree::OnCollapse(char const*)",
                     "BaseTree::OnExpand(char const*)", "EcadTree::OnSelect(int, char**, int)",
                     "Tree::OnCheck(char const*)", "Tree::AddNode(oxecad_ui::Tree::NodeInfo const&)",
                     "Tree::GetNodeInfo(char const*, oxecad_ui::Tree::NodeInfo&) const",
                     "Tree::GetNodeInfo(char const*) const"}));
}

TEST(VirtualTables, CompareColorTree) {
  EXPECT_EQ(TableOf<CompareColorTree>(),
            Members({"CompareColorTree::~CompareColorTree()", "CompareColorTree::~CompareColorTree()", "Tree::Init()",
                     "BaseTree::Clear()", "CompareColorTree::OnActivate(char const*)",
                     "CompareColorTree::OnCollapse(char const*)", "CompareColorTree::OnExpand(char const*)",
                     "CompareColorTree::OnSelect(int, char**, int)", "CompareColorTree::OnCheck(char const*)",
                     "CompareColorTree::AddNode(oxecad_ui::Tree::NodeInfo const&)",
                     "Tree::GetNodeInfo(char const*, oxecad_ui::Tree::NodeInfo&) const",
                     "CompareColorTree::GetNodeInfo(char const*) const"}));
}

TEST(VirtualTables, UserDataTree) {
  EXPECT_EQ(TableOf<UserDataTree>(),
            Members({"UserDataTree::~UserDataTree()", "UserDataTree::~UserDataTree()", "Tree::Init()",
                     "BaseTree::Clear()", "BaseTree::OnActivate(char const*)", "BaseTree::OnCollapse(char const*)",
                     "BaseTree::OnExpand(char const*)", "BaseTree::OnSelect(int, char**, int)",
                     "Tree::OnCheck(char const*)", "Tree::AddNode(oxecad_ui::Tree::NodeInfo const&)",
                     "UserDataTree::GetNodeInfo(char const*, oxecad_ui::Tree::NodeInfo&) const",
                     "UserDataTree::GetNodeInfo(char const*) const"}));
}

TEST(VirtualTables, RecordsHaveTheDestructorAlone) {
  EXPECT_EQ(TableOf<Tree::NodeInfo>(), Members({"Tree::NodeInfo::~NodeInfo()", "Tree::NodeInfo::~NodeInfo()"}));
  EXPECT_EQ(TableOf<ColorTree::ColorNodeInfo>(),
            Members({"ColorTree::ColorNodeInfo::~ColorNodeInfo()", "ColorTree::ColorNodeInfo::~ColorNodeInfo()"}));
  EXPECT_EQ(TableOf<CompareColorTree::CompareNodeInfo>(),
            Members({"CompareColorTree::CompareNodeInfo::~CompareNodeInfo()",
                     "CompareColorTree::CompareNodeInfo::~CompareNodeInfo()"}));
  EXPECT_EQ(TableOf<UserDataTree::DataNodeInfo>(),
            Members({"UserDataTree::DataNodeInfo::~DataNodeInfo()", "UserDataTree::DataNodeInfo::~DataNodeInfo()"}));
}

TEST(VirtualTables, FiltersAskByNameAndThenByRecord) {
  EXPECT_EQ(TableOf<Tree::NodeFilter>(), Members({"none", "none", kPure, kPure}));
  const auto questions = [](Names table, const std::string& filter) {
    if (table.size() == 4) table.erase(table.begin(), table.begin() + 2);  // both destructors
    return table == Names{"oxecad_ui::" + filter + "::operator()(oxecad_ui::Tree const*, char const*) const",
                          "oxecad_ui::" + filter + "::operator()(oxecad_ui::Tree::NodeInfo const&) const"};
  };
  EXPECT_TRUE(questions(TableOf<Tree::Everything>(), "Tree::Everything"));
  EXPECT_TRUE(questions(TableOf<Tree::CheckedOnly>(), "Tree::CheckedOnly"));
  EXPECT_TRUE(questions(TableOf<CompareColorTree::ColorNodeFilter>(), "CompareColorTree::ColorNodeFilter"));
}

TEST(VirtualTables, WideComparators) {
  const auto behind = [](const std::string& compare) {
    const std::string plain = "CAlphaNumericWStringComparator::";
    const std::string own = "oxecad_ui::" + plain;
    return Names{"oxecad_ui::" + compare,
                 own + "ToUpper(wchar_t) const",
                 own + "Chars(" + Demangled(typeid(std::wstring).name()) + " const&) const",
                 own + "DigitLow() const",
                 own + "DigitHigh() const",
                 own + "Terminator() const",
                 own + "SignedNumbers() const",
                 own + "MinusSign() const"};
  };
  // Places 0 and 1 (the destructor), 2 and 3 (the direction), and 5 (the hook) are made in each program anew.
  const auto named = [](Names table) {
    if (table.size() != 13) return table;
    table.erase(table.begin() + 5);
    table.erase(table.begin(), table.begin() + 4);
    return table;
  };
  const std::string text = Demangled(typeid(std::wstring).name()) + " const&";
  const std::string compare = "::Compare(" + text + ", " + text + ") const";
  EXPECT_EQ(named(TableOf<CAlphaNumericWStringComparator>()), behind("CAlphaNumericWStringComparator" + compare));
  EXPECT_EQ(named(TableOf<CAlphaNumericWStringEcadComparator>()),
            behind("CAlphaNumericWStringEcadComparator" + compare));
}

TEST(VirtualTables, InputTests) {
  const std::string out = Demangled(typeid(std::wstring).name()) + "&";
  const std::string part = "::CanBeAPartOfValidInput(wchar_t const*) const";
  const std::string valid = "::GetValidInput(wchar_t const*, " + out + ") const";
  const std::string numeric = "oxecad_ui::NumericInputTest<double>";
  const std::string hook = "oxkutils::RefCounted::ZeroReferenceCountHook()";
  EXPECT_EQ(TableOf<InputTest>(), (Names{"none", "none", hook, kPure, kPure}));
  EXPECT_EQ(TableOf<NumericInputTest<double>>(),
            (Names{numeric + "::~NumericInputTest()", numeric + "::~NumericInputTest()", hook, numeric + part,
                   numeric + valid}));
  EXPECT_EQ(TableOf<LengthInputTest>(),
            (Names{"oxecad_ui::LengthInputTest::~LengthInputTest()", "oxecad_ui::LengthInputTest::~LengthInputTest()",
                   hook, numeric + part, numeric + valid}));
}

TEST(VirtualTables, RenameWithBalloonDlg) {
  EXPECT_EQ(TableOf<RenameWithBalloonDlg>(),
            Members({"RenameWithBalloonDlg::~RenameWithBalloonDlg()", "RenameWithBalloonDlg::~RenameWithBalloonDlg()",
                     "RenameWithBalloonDlg::ClickOK()", "oxcore::RenameDlg::Close()",
                     "oxcore::RenameDlg::NameChanged()", "oxcore::RenameDlg::ClickHelp()"}));
}

}  // namespace
}  // namespace oxecad_ui
