out/mantra1.parm {
take name s0 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
out/anything.parm {
take name s1 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
out/alembicarchive1.parm {
take name s2 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
obj/geo1/file1.parm {
take name s3 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
obj/alembicarchive1.parm {
take name s4 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
obj/ALEMBICARCHIVE1.parm {
take name s5 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
obj/alembic1.parm {
take name s6 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
obj/alembicarchive1/mantra.parm {
take name s7 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
OBJ/x/MANTRA1.parm {
take name s8 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
img/comp1/rop_comp1.parm {
take name s9 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
img/comp1/blur1.parm {
take name s10 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
img/net/blur1.parm {
take name s11 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
stage/karma1.parm {
take name s12 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
stage/KARMA1.parm {
take name s13 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
stage/karmarenderproperties1.parm {
take name s14 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
stage/karmaRenderProperties1.parm {
take name s15 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
stage/karmarenderproperties1/rendersettings.parm {
take name s16 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
stage/rendersettings1.parm {
take name s17 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
stage/RenderSettings2.parm {
take name s18 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
stage/hdprman1.parm {
take name s19 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
stage/HdPrman1.parm {
take name s20 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
stage/usdrender_rop1.parm {
take name s21 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
stage/sublayer1.parm {
take name s22 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
out/wedge1.parm {
take name s23 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
obj/wedge1.parm {
take name s24 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
obj/awedge1.parm {
take name s25 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
obj/net/wedge1.parm {
take name s26 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
obj/Wedge1.parm {
take name s27 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
obj/cam1.parm {
take name s28 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
out/cam1.parm {
take name s29 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
obj/stereocam_rig.parm {
take name s30 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
obj/stereocam_rig/mantra.parm {
take name s31 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
obj/Cam1.parm {
take name s32 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
shop/mantra1.parm {
take name s33 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
out/mantra2.parm
take name s34 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
out/mantra3.PARM {
take name s35 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
out/mantra4.parm {}
take name s36 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
out/mantra5.userdata {
take name s37 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
obj/cam2.init {
take name s38 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
{
take name s39 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
out/mantra6.parm { 	
take name s40 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
out/mantra1.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/r/$OS.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/stereocam_rig	)
}
