/// \file
/// The tree of a comparison of two boards.
#ifndef OXECAD_VIEWER_TREES_COMPARETREE_H
#define OXECAD_VIEWER_TREES_COMPARETREE_H

#include <viewer/board/Board.h>
#include <viewer/diff/BoardDiff.h>
#include <viewer/trees/LayerPalette.h>
#include <viewer/trees/TextSearch.h>

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <uicomps/compare/CompareColorTree.h>

namespace oxviewer {

/// How things of a comparison are shown.
struct CompareLook {
  Color colorA = kNoColor;
  Color colorB = kNoColor;
  Color colorOverlap = kNoColor;
  oxk::ecad::CompareColorVis::ShowMode showMode = oxk::ecad::CompareColorVis::Both;
  bool dimOverlap = false;

  friend bool operator==(const CompareLook&, const CompareLook&) = default;
};

/// What a node of the comparison stands for. Positions are those on the boards, negative where a board has none.
struct CompareSubject {
  enum class Kind : std::uint8_t { Layer, Component, Net };
  Kind kind;
  std::string node;
  std::string name;
  std::int32_t a;
  std::int32_t b;
  bool differs;
};

/// Layers, components and nets of two boards, each with its colours in A, in B and where both are, its show mode and
/// whether what both have is dimmed. The column "difference" says in words what differs.
///
///     A and B                        root
///       Layers                       layers
///         F.Cu                       layers/layer:F.Cu
///       Components                   components
///         R1      moved, value       components/component:R1
///         R2      only in A          components/component:R2
///       Nets                         nets
///         GND     tracks, vias       nets/net:GND
class CompareTree : public oxecad_ui::CompareColorTree {
 public:
  static constexpr const char* kName = "compare";
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  /// The colours that everything has at first: told apart by any eye, and seen on light and on dark ground.
  static constexpr Color kColorA = ColorOf(0xD9, 0x77, 0x06);
  static constexpr Color kColorB = ColorOf(0x3B, 0x8B, 0xE8);
  static constexpr Color kColorOverlap = ColorOf(0x6F, 0x74, 0x7A);

  /// Shows a comparison in the tree "compare" of the device. Boards and comparison must outlive it.
  CompareTree(const char* device, const Board& a, const Board& b, const BoardDiff& diff);
  CompareTree(const CompareTree&) = delete;
  CompareTree& operator=(const CompareTree&) = delete;
  /// Empties the tree.
  ~CompareTree() override;

  using CompareColorTree::Init;
  /// Registers the tree's events and fills it.
  void Fill(oxcore::Mainframe* mainframe);

  /// Is called after the user has changed a colour, a show mode or a dim box.
  void SetOnChange(std::function<void()> onChange) { onChange_ = std::move(onChange); }
  /// Is called after the user has changed the selection.
  void SetOnSelection(std::function<void()> onSelection) { onSelection_ = std::move(onSelection); }

  /// Everything that is compared, in the order of the tree.
  const std::vector<CompareSubject>& Subjects() const { return subjects_; }
  /// How the subject at a position is shown now.
  CompareLook LookOf(std::size_t subject) const;
  /// Shows a subject in another way; a board that does not have it stays without a colour.
  void SetLook(std::size_t subject, const CompareLook& look);
  /// Positions of the subjects selected, in ascending order; a heading stands for all below it.
  const std::vector<std::size_t>& Selected() const { return selected_; }

  /// The position of the subject that a node stands for; kNone for a heading.
  std::size_t SubjectOf(const std::string& node) const;

  /// The position of the next subject that differs, after `from` and round the end; `backwards` goes the other way.
  /// `accept` may refuse subjects. kNone when there is none.
  std::size_t NextDifference(std::size_t from, bool backwards, const std::function<bool(std::size_t)>& accept) const;

  /// Whether a subject's name or difference passes a test of texts (UTF-8).
  bool Matches(std::size_t subject, const TextTest& test) const;

  void OnSelect(int count, char** nodes, int kind) override;

 private:
  static int DirtyCB(void* self, void* reason);

  /// One of the three parts of a comparison, each below a heading of its own.
  struct Section {
    CompareSubject::Kind kind;
    const char* heading;
    const char* label;
    const SectionDiff& diff;
  };

  std::vector<Section> Sections() const;
  static CompareNodeInfo Heading(const char* node, const std::wstring& label, bool expanded);
  void AddSubjects(const Section& section, std::vector<CompareNodeInfo>& nodes);
  CompareNodeInfo NodeOf(const CompareSubject& subject) const;
  std::string UniqueNode(const Section& section, const std::string& name);
  void ShowDifferences();

  const Board& a_;
  const Board& b_;
  const BoardDiff& diff_;
  std::vector<CompareSubject> subjects_;
  std::vector<std::string> differences_;
  std::map<std::string, std::size_t> positions_;  // by node
  std::map<std::string, int> used_;               // how often a node name was asked for
  std::vector<std::size_t> selected_;
  std::vector<std::string> changed_;
  std::function<void()> onChange_;
  std::function<void()> onSelection_;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_TREES_COMPARETREE_H
