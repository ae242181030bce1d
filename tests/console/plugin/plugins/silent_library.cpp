extern "C" {
int IsCVSable(void*) {
  return 0;
}
int IsCVSModifiable(void*) {
  return 0;
}
void _ZN12ZRKCVSStatusC1Ev(void*) {}
void _ZN12ZRKCVSStatusD1Ev(void*) {}
}
