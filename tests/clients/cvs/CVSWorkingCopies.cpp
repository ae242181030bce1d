#include "CVSWorkingCopies.h"

#include <pwd.h>
#include <unistd.h>

std::string CVSWorkingCopies::NameOf(const User& user) {
  const passwd* account = getuid() == 0 ? nullptr : getpwuid(getuid());
  return account ? account->pw_name : user.Name();
}
