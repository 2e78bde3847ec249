# dummy: made by art/build.sh, do not edit
Name dummy
center 0 0 0
x axis 1 0 0
y axis 0 1 0
z axis 0 0 1
Transform
1 0 0 0
0 1 0 0
0 0 1 0
0 0 0 1
World Vertices 4
0 0 0
0.1 0 0
0 0 0.1
0 0 0.142
Texture Vertices 1
0 0
Faces 1
Face verts 3 flags 0 mat 0
<0,0> <2,0> <1,0>
mat# 0
rgb 0.7422,0.652,0.55
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "plain color"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "matte"
