# Drilling, threading and simple milling classes.
tq_add_test(tqcadcam_tools_drilling_test
  tqendmill_test.cpp
  tqcntrbore_test.cpp
  tqpotgrindertool_test.cpp
  tqthreadtaptool_test.cpp
  tqbullmill_test.cpp
  tqsphermill_test.cpp
  tqradmill_test.cpp
  tqdrill_test.cpp
  tqspotdrill_test.cpp
  tqtaplh_test.cpp
  tqtaprh_test.cpp
  tqcsink_test.cpp
  tqctrdrill_test.cpp
  tqreamer_test.cpp
)
