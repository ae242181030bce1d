extern "C" int SomethingElse() {
  return 1;
}
