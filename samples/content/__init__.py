"""What the sample tank file tells: two tanks, two years."""
