#include "bench/reporting/BoardFile.h"

#include <oxecadutils/StringConversion.h>

#include <algorithm>
#include <fstream>
#include <stdexcept>
#include <vector>

#include "bench/Labels.h"

namespace oxecad_bench {

namespace {

constexpr std::size_t kNetsOfComponent = 5;
constexpr std::size_t kPadsOfNet = 2;

/// Writes the parts of a board one after the other.
class BoardWriter {
 public:
  BoardWriter(std::ostream& file, std::size_t nets) : file_(file) {
    for (const std::wstring& label : NetLabels(nets)) names_.push_back(oxecadutils::WideStrToUtf8(label));
  }

  void Write() {
    file_ << "(kicad_pcb (version 20211014) (generator pcbnew)\n  (general (thickness 1.6))\n  (layers\n"
             "    (0 \"F.Cu\" signal)\n    (31 \"B.Cu\" signal)\n    (36 \"B.SilkS\" user)\n"
             "    (37 \"F.SilkS\" user)\n    (44 \"Edge.Cuts\" user)\n  )\n  (net 0 \"\")\n";
    for (std::size_t net = 0; net < names_.size(); ++net) {
      file_ << "  (net " << net + 1 << " \"" << names_[net] << "\")\n";
    }
    for (std::size_t net = 0; net < names_.size(); net += kNetsOfComponent) WriteComponent(net);
    for (std::size_t net = 0; net < names_.size(); ++net) WriteCopper(net);
    file_ << ")\n";
  }

 private:
  /// Each thing has an identifier of its own.
  std::string Identifier() {
    std::string digits = std::to_string(++identifiers_);
    digits.insert(0, 12 - std::min<std::size_t>(12, digits.size()), '0');
    return "(tstamp 5f9a3c1e-7b64-4d20-9c58-" + digits + ")";
  }

  static std::string Millimetres(std::size_t tenths) {
    return std::to_string(tenths / 10) + '.' + std::to_string(tenths % 10);
  }

  static std::string Place(std::size_t net) {
    return Millimetres(10 * (net % 1000)) + ' ' + Millimetres(10 * (net / 1000));
  }

  void WriteComponent(std::size_t first) {
    static const char* const kPrefixes[] = {"R", "C", "U", "L", "J", "D", "Q", "TP"};
    const std::size_t number = first / kNetsOfComponent;
    file_ << "  (footprint \"Package_SO:SOIC-10\" (layer \"F.Cu\")\n    (tedit 5F68FEEE) " << Identifier()
          << "\n    (at " << Place(first) << ")\n    (attr smd)\n    (fp_text reference \"" << kPrefixes[number % 8]
          << number / 8 + 1 << "\" (at 0 -3) (layer \"F.SilkS\")\n"
          << "      (effects (font (size 0.7 0.7) (thickness 0.1)))\n      " << Identifier() << "\n    )\n"
          << "    (fp_text value \"" << number % 97 << "k\" (at 0 3) (layer \"F.Fab\")\n"
          << "      (effects (font (size 0.7 0.7) (thickness 0.1)))\n      " << Identifier() << "\n    )\n";
    const std::size_t nets = std::min(kNetsOfComponent, names_.size() - first);
    for (std::size_t pad = 0; pad < nets * kPadsOfNet; ++pad) {
      const std::size_t net = first + pad / kPadsOfNet;
      file_ << "    (pad \"" << pad + 1 << "\" smd rect (at " << Millimetres(5 * pad)
            << " 0) (size 1.2 0.6) (layers \"F.Cu\" \"F.Paste\" \"F.Mask\") (net " << net + 1 << " \"" << names_[net]
            << "\") " << Identifier() << ")\n";
    }
    file_ << "  )\n";
  }

  void WriteCopper(std::size_t net) {
    for (std::size_t piece = 0; piece < 2; ++piece) {
      file_ << "  (segment (start " << Place(net + piece) << ") (end " << Place(net + piece + 1)
            << ") (width 0.25) (layer \"F.Cu\") (net " << net + 1 << ") " << Identifier() << ")\n";
    }
    if (net % 2 != 0) return;
    file_ << "  (via (at " << Place(net) << ") (size 0.6) (drill 0.3) (layers \"F.Cu\" \"B.Cu\") (net " << net + 1
          << ") " << Identifier() << ")\n";
  }

  std::ostream& file_;
  std::vector<std::string> names_;
  std::size_t identifiers_ = 0;
};

}  // namespace

void WriteBoard(const std::string& path, std::size_t nets) {
  std::ofstream file(path, std::ios::binary);
  file.imbue(std::locale::classic());
  BoardWriter(file, nets).Write();
  file.flush();
  if (!file) throw std::runtime_error(path + ": the board cannot be written");
}

}  // namespace oxecad_bench
