"""What the scripts that write tank files share: the file's form, dates, and small drawn pictures."""
