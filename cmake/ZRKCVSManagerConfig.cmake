# Targets ZRKCVSManager::ZRKCVSManager, the component with its exported header,
# ZRKCVSManager::ZRKVersionControlItf, the interfaces, and ZRKCVSManager::ZRKHostCheck, the host check; they need the
# host's own headers and library.
include(${CMAKE_CURRENT_LIST_DIR}/ZRKCVSManagerTargets.cmake)
