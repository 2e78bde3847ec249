Name nothing
center 0 0 0
