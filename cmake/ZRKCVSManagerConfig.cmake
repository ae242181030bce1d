# Targets ZRKCVSManager::ZRKCVSManager, the component with its exported header, and
# ZRKCVSManager::ZRKVersionControlItf, the interfaces; both need the host's own headers and library.
include(${CMAKE_CURRENT_LIST_DIR}/ZRKCVSManagerTargets.cmake)
