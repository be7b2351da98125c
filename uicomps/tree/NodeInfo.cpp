#include <utility>

#include <uicomps/tree/Tree.h>

namespace oxecad_ui {

Tree::NodeInfo::NodeInfo(const NodeInfo&) = default;

Tree::NodeInfo& Tree::NodeInfo::operator=(const NodeInfo&) = default;

Tree::NodeInfo::~NodeInfo() = default;

Tree::TreeInfo::TreeInfo(const TreeInfo& other) : records(other.records), ownsRecords(false) {}

Tree::TreeInfo& Tree::TreeInfo::operator=(const TreeInfo& other) {
  if (this != &other) {
    std::vector<NodeInfo*> shared = other.records;
    Clear();
    records = std::move(shared);
    ownsRecords = false;
  }
  return *this;
}

Tree::TreeInfo::~TreeInfo() { Clear(); }

void Tree::TreeInfo::Clear() {
  if (ownsRecords) {
    for (const NodeInfo* record : records) delete record;
  }
  records.clear();
}

}  // namespace oxecad_ui
