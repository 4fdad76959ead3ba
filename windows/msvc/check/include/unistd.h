#error "<unistd.h> is Wine's; Microsoft's runtime has none."
