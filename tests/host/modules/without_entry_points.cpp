// A library that is no add-in.
extern "C" int answer() {
  return 42;
}
