# Benchmarks of the front end.
add_executable(korvid-bench-frontend ${CMAKE_CURRENT_LIST_DIR}/FrontendBench.cpp)
target_link_libraries(korvid-bench-frontend PRIVATE Frontend
                      benchmark::benchmark_main)
target_compile_definitions(korvid-bench-frontend PRIVATE
  KORVID_CORPUS_DIR="${PROJECT_SOURCE_DIR}/../shared/corpus")
