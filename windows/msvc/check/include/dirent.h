#error "<dirent.h> is Wine's; Microsoft's runtime has none."
