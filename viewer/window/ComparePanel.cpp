#include <viewer/trees/CompareTree.h>
#include <viewer/window/ComparePanel.h>
#include <viewer/window/FilterLine.h>
#include <viewer/window/ToolIcons.h>
#include <viewer/window/TreePanel.h>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include <uiox_qt/TreeView.h>

namespace oxviewer {
namespace {

QToolButton* MakeButton(ToolSign sign, const QString& tip) {
  auto* button = new QToolButton;
  button->setIcon(ToolIcon(sign));
  button->setToolTip(tip);
  button->setAutoRaise(true);
  return button;
}

}  // namespace

ComparePanel::ComparePanel(uiox_qt::TreeView& view, QWidget* parent)
    : QWidget(parent),
      panel_(new TreePanel(view, tr("Filter names and differences"))),
      differencesOnly_(new QCheckBox(tr("Differences only"))),
      place_(new QLabel) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(panel_, 1);
  auto* previous = MakeButton(ToolSign::Previous, tr("Previous difference (Shift+F3)"));
  auto* next = MakeButton(ToolSign::Next, tr("Next difference (F3)"));
  panel_->TopRow().addWidget(differencesOnly_);
  panel_->TopRow().addWidget(previous);
  panel_->TopRow().addWidget(next);
  place_->setContentsMargins(8, 0, 8, 6);
  layout->addWidget(place_);
  connect(previous, &QToolButton::clicked, this, [this] { GoToPrevious(); });
  connect(next, &QToolButton::clicked, this, [this] { GoToNext(); });
  connect(differencesOnly_, &QCheckBox::toggled, this, [this](bool only) { panel_->SetNarrowed(only); });
  panel_->SetNodeTest([this](const std::string& node, const TextMatcher& matcher) {
    const std::size_t subject = tree_ ? tree_->SubjectOf(node) : CompareTree::kNone;
    return subject != CompareTree::kNone && IsShown(subject, matcher);
  });
}

void ComparePanel::SetTree(CompareTree* tree) {
  tree_ = tree;
  panel_->Refilter();
  std::size_t differences = 0;
  if (tree_) {
    for (const CompareSubject& subject : tree_->Subjects()) differences += subject.differs ? 1 : 0;
  }
  place_->setText(differences == 0   ? tr("The boards are equal")
                  : differences == 1 ? tr("1 difference")
                                     : tr("%1 differences").arg(differences));
  differencesOnly_->setEnabled(differences > 0);
}

bool ComparePanel::ShowsDifferencesOnly() const { return differencesOnly_->isChecked(); }

void ComparePanel::SetDifferencesOnly(bool only) { differencesOnly_->setChecked(only); }

bool ComparePanel::IsShown(std::size_t subject, const TextMatcher& matcher) const {
  return (!differencesOnly_->isChecked() || tree_->Subjects()[subject].differs) &&
         tree_->Matches(subject, [&](std::string_view text) { return matcher.MatchesUtf8(text); });
}

void ComparePanel::Go(bool backwards) {
  if (!tree_) return;
  const std::vector<std::size_t>& selected = tree_->Selected();
  const std::size_t from =
      selected.empty() || selected.size() == tree_->Subjects().size() ? CompareTree::kNone : selected.back();
  const TextMatcher matcher = panel_->Filter().Matcher();
  const std::size_t next =
      tree_->NextDifference(from, backwards, [&](std::size_t subject) { return IsShown(subject, matcher); });
  if (next == CompareTree::kNone) return;
  panel_->SelectNodes({tree_->Subjects()[next].node}, false);
  std::size_t number = 0;
  std::size_t count = 0;
  for (std::size_t i = 0; i < tree_->Subjects().size(); ++i) {
    if (!tree_->Subjects()[i].differs) continue;
    ++count;
    if (i <= next) ++number;
  }
  place_->setText(tr("Difference %1 of %2").arg(number).arg(count));
  Q_EMIT DifferenceShown(next);
}

}  // namespace oxviewer
