#pragma once

// Open handles of this process: on Windows all of them, on Linux those that the stand-in gave out and the
// file descriptors. Compare two counts; one alone says nothing.
int CountOpenHandles();

// Those handles among them that a child process inherits.
int CountInheritableHandles();
