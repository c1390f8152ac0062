# Benchmarks of the front end.
