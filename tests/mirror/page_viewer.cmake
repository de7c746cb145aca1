add_library(page_probe MODULE page_probe.cpp)
set_target_properties(page_probe PROPERTIES LIBRARY_OUTPUT_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR})
target_link_libraries(page_probe PRIVATE Qt6::Test Qt6::WebEngineCore)

# The test does not link the engine, as little as the program does.
add_executable(test_page_viewer test_page_viewer.cpp)
add_dependencies(test_page_viewer benevix_page_viewer page_probe)
target_compile_definitions(test_page_viewer PRIVATE PAGE_PROBE="$<TARGET_FILE:page_probe>")
set_target_properties(test_page_viewer PROPERTIES AUTOMOC ON)
target_link_libraries(test_page_viewer PRIVATE
  benevix_loopback
  benevix_page_view_host
  GTest::gtest
  OpenSSL::Crypto
  Qt6::Test
)
gtest_discover_tests(test_page_viewer
  PROPERTIES LABELS page-viewer ENVIRONMENT QTWEBENGINE_DISABLE_SANDBOX=1
)
