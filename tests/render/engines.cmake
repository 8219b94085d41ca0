tessaline_test(
  scroll_engines
  SOURCES DisplayLinkScrollerTest.cpp TimerScrollerTest.cpp
  LIBRARIES tessaline::render tessaline::test_support)
