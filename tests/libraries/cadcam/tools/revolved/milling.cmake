# Milling classes with shaped heads.
tq_add_test(tqcadcam_tools_milling_test
  tqtapermill_test.cpp
  tqdovemill_test.cpp
  tqborebar_test.cpp
  tqfacemill_test.cpp
  tqchamfermill_test.cpp
  tqslotmill_test.cpp
  tqlolmill_test.cpp
  tqconvextipmill_test.cpp
  tqbarrellensmill_test.cpp
  revolvedproperty_test.cpp
)
