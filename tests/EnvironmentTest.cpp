// Tests of this family are added here.
