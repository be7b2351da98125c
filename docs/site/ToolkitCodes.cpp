// Writes the toolkit's codes for the documentation, from the tables that the constants are made of.
//   toolkit_codes page          the page with all tables, as Markdown
//   toolkit_codes header FILE   the header with the tables' constants spelled out and commented, as Doxygen reads it
#include <uicomps/toolkit/Toolkit.h>

#include <fstream>
#include <iostream>
#include <string>
#include <vector>

namespace {

struct Row {
  std::string name;
  int code;
  std::string shape;
  std::string options;
  std::string meaning;
};

struct Table {
  std::string macro;
  std::string constants;
  std::string title;
  std::vector<Row> rows;
};

#define OPERATION_ROW(name, code, shape, options, meaning) Row{#name, code, shape, #options, meaning},
#define ROW(name, code, shape, meaning) Row{#name, code, shape, "None", meaning},

const std::vector<Table>& Tables() {
  static const std::vector<Table> tables = {
      {"OXECAD_UI_OPERATIONS", "Operation", "Operations on a component", {OXECAD_UI_OPERATIONS(OPERATION_ROW)}},
      {"OXECAD_UI_GLOBAL_OPERATIONS", "GlobalOperation", "Global operations", {OXECAD_UI_GLOBAL_OPERATIONS(ROW)}},
      {"OXECAD_UI_NODE_OPTIONS", "NodeOption", "Options of new and changed nodes", {OXECAD_UI_NODE_OPTIONS(ROW)}},
      {"OXECAD_UI_NODE_ATTRIBUTES", "NodeAttribute", "Attributes of a node", {OXECAD_UI_NODE_ATTRIBUTES(ROW)}},
      {"OXECAD_UI_COMPONENT_ATTRIBUTES",
       "ComponentAttribute",
       "Attributes of a component or a device",
       {OXECAD_UI_COMPONENT_ATTRIBUTES(ROW)}},
      {"OXECAD_UI_CELL_ATTRIBUTES", "CellAttribute", "Attributes of a cell", {OXECAD_UI_CELL_ATTRIBUTES(ROW)}},
      {"OXECAD_UI_CONTROL_ATTRIBUTES",
       "ControlAttribute",
       "Attributes of a control in a cell",
       {OXECAD_UI_CONTROL_ATTRIBUTES(ROW)}},
      {"OXECAD_UI_REASONS", "Reason", "Reasons of callbacks", {OXECAD_UI_REASONS(ROW)}},
      {"OXECAD_UI_GLOBAL_CODES", "GlobalCode", "Global inquiries", {OXECAD_UI_GLOBAL_CODES(ROW)}}};
  return tables;
}

std::string OneSlot(char letter) {
  switch (letter) {
    case 's':
      return "narrow text";
    case 'w':
      return "wide text";
    case 'i':
      return "int";
    case 'u':
      return "unsigned";
    case 'p':
      return "pointer";
    case 'l':
      return "count, names";
    case 'S':
      return "&narrow text";
    case 'W':
      return "&wide text";
    case 'I':
      return "&int";
    case 'U':
      return "&unsigned";
    case 'P':
      return "&pointer";
    case 'L':
      return "&count, &names";
    case '<':
      return "pairs to set, 0";
    case '>':
      return "pairs to read, 0";
    case '0':
      return "0";
    default:
      return "";
  }
}

std::string InWords(const Row& row) {
  std::string words;
  for (const char letter : row.shape) {
    const std::string slot = OneSlot(letter);
    if (slot.empty()) continue;
    if (!words.empty()) words += ", ";
    words += slot;
  }
  if (row.options != "None") words += " (" + row.options + ")";
  return words;
}

void WritePage(std::ostream& out) {
  out << "# Codes of the toolkit {#toolkit_codes}\n\n"
         "Every code that travels on the wire, made from the tables of `uicomps/toolkit/Toolkit.h`. A value fills one "
         "pointer-sized slot; an `&` stands for the address that the answer goes to; \"pairs\" are codes of the table "
         "in "
         "brackets, each with its value or address, and a 0 ends them.\n";
  for (const Table& table : Tables()) {
    out << "\n## " << table.title << "\n\nConstants of `oxecad_ui::toolkit::" << table.constants << "`.\n\n";
    const bool has_values = table.constants != "Reason";
    out << (has_values ? "| Code | Name | Values | Meaning |\n|---:|---|---|---|\n"
                       : "| Code | Name | Meaning |\n|---:|---|---|\n");
    for (const Row& row : table.rows) {
      out << "| " << row.code << " | `" << row.name << "` | ";
      if (has_values) out << InWords(row) << " | ";
      out << row.meaning << " |\n";
    }
  }
}

void WriteEnumerators(const Table& table, std::ostream& out) {
  out << "/// " << table.title << "; see \\ref toolkit_codes.\n";
  out << "enum class " << table.constants << " : int {\n";
  for (const Row& row : table.rows) {
    out << "  " << row.name << " = " << row.code << ",  ///< " << row.meaning << "\n";
  }
  out << "};\n";
}

int WriteHeader(const char* file, std::ostream& out) {
  std::ifstream in(file);
  if (!in) {
    std::cerr << file << " cannot be read\n";
    return 1;
  }
  std::size_t spelled_out = 0;
  for (std::string line; std::getline(in, line);) {
    const Table* found = nullptr;
    for (const Table& table : Tables()) {
      if (line.rfind("enum class " + table.constants + " :", 0) == 0) found = &table;
    }
    const bool makes_constants = line.find("_CONSTANT") != std::string::npos;  // spelled out below
    if (makes_constants && found == nullptr) continue;
    if (found != nullptr) {
      WriteEnumerators(*found, out);
      ++spelled_out;
    } else {
      out << line << '\n';
    }
  }
  if (spelled_out == Tables().size()) return 0;
  std::cerr << file << " declares " << spelled_out << " of " << Tables().size() << " tables' constants\n";
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  const std::string mode = argc > 1 ? argv[1] : "";
  if (mode == "page") {
    WritePage(std::cout);
    return 0;
  }
  if (mode == "header" && argc == 3) return WriteHeader(argv[2], std::cout);
  std::cerr << "Usage: toolkit_codes page | toolkit_codes header FILE\n";
  return 2;
}
