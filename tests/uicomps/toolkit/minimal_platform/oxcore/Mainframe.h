#ifndef OXECAD_TESTS_MINIMAL_OXCORE_MAINFRAME_H
#define OXECAD_TESTS_MINIMAL_OXCORE_MAINFRAME_H

namespace oxcore {

class Mainframe;

}  // namespace oxcore

#endif
