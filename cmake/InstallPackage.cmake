# The CMake package through which a module of the host finds the component's exported header, the
# interface library and the component.
