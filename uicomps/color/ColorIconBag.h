/// \file
/// The colour squares: one image for each colour, made when it is first asked for.
#ifndef OXECAD_UI_COLOR_COLORICONBAG_H
#define OXECAD_UI_COLOR_COLORICONBAG_H

#include <string>
#include <unordered_map>
#include <vector>

#include <uicomps/toolkit/Export.h>

namespace oxecad_ui {

/// Makes, once for each base image and colour, an icon of that colour and defines it in the toolkit under a name that
/// tells the colour: the base image's name, "_", and the colour as a decimal number. It is the only place that builds
/// and reads such names. Colours are 0x00BBGGRR; the top byte goes into the name and is not painted. 0xFFFFFFFF is no
/// colour.
///
/// There is one bag in a process. Its creation is safe from several threads, its use belongs to the user-interface
/// thread.
class OXECAD_UI_EXPORT ColorIconBag {
 public:
  /// The bag of the process, made at the first call.
  static ColorIconBag& Get();
  ColorIconBag(const ColorIconBag&) = delete;
  ColorIconBag& operator=(const ColorIconBag&) = delete;
  /// Forgets the names; the images stay defined.
  ~ColorIconBag();

  /// The name of the icon of a colour; makes the icon when it is asked for the first time. The characters belong to the
  /// bag and stay for its life. Null for no colour, or when the base image cannot be loaded (the next call tries
  /// again). Constant time for an icon that is there; linear in the base image's pixels for a new one.
  const char* GetColorIcon(const char* name, unsigned int color);

  /// Reads the colour back from an icon name; 0xFFFFFFFF when it holds none. As many characters as the base image's
  /// name has, and one more, are skipped without a look; the rest must be one decimal number.
  unsigned int GetColorFromIcon(const char* icon, const char* name) const;

 private:
  /// The names of one base image's icons by colour: an icon is found without building its name, and names stay where
  /// they are.
  struct KnownIcons {
    std::string base;
    std::unordered_map<unsigned int, std::string> icons;
  };

  ColorIconBag();
  static std::string GetIconName(const char* name, unsigned int color);
  KnownIcons& IconsOf(const char* name);

  std::vector<KnownIcons> m_known;
};

}  // namespace oxecad_ui

#endif
