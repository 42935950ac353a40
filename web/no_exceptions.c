// The page's code has no exceptions: of what may be thrown there is only the lack of memory, which
// ends the program at once. The page then begins anew.

void* __cxa_allocate_exception(unsigned long size) {
  (void)size;
  __builtin_trap();
}

void __cxa_throw(void* thrown, void* type, void (*destructor)(void*)) {
  (void)thrown, (void)type, (void)destructor;
  __builtin_trap();
}
