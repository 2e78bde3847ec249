# light-mark: made by art/build.sh, do not edit
Name light-mark
center 0 0 0
x axis 1 0 0
y axis 0 1 0
z axis 0 0 1
Transform
1 0 0 0
0 1 0 0
0 0 1 0
0 0 0 1
World Vertices 6
0 -0.3 0
0.3 0 0
0 0.3 0
-0.3 0 0
0 0 0.3
0 0 -0.3
Texture Vertices 1
0 1
Faces 8
Face verts 3 flags 0 mat 0
<0,0> <4,0> <1,0>
Face verts 3 flags 0 mat 0
<1,0> <4,0> <2,0>
Face verts 3 flags 0 mat 0
<2,0> <4,0> <3,0>
Face verts 3 flags 0 mat 0
<3,0> <4,0> <0,0>
Face verts 3 flags 0 mat 0
<1,0> <5,0> <0,0>
Face verts 3 flags 0 mat 0
<2,0> <5,0> <1,0>
Face verts 3 flags 0 mat 0
<3,0> <5,0> <2,0>
Face verts 3 flags 0 mat 0
<0,0> <5,0> <3,0>
mat# 0
rgb 1,0.8284,0.4833
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "plain color"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "constant"
